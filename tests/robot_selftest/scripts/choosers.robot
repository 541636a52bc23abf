# File choosers, answered and cancelled.
start
click C_Open
expect-chooser "Open a text" "File (*.txt);;All (*.*)"
expect-chooser "Open a text" "File (*.txt)|*.txt|All|*.*"
nobox
file Setup/words.txt
screen FrmPracticeStart
expect-log "chosen words.txt"
mark-log
click C_Open
file cancel
expect-log "chosen "
mark-log
click C_Open
file script/choosers.robot
expect-log "chosen choosers.robot"
mark-log
click C_SaveAs
expect-chooser "Save a text" "File (*.txt)|*.txt"
file Dati/new.txt
expect-log "chosen new.txt"
mark-log
# The toolkit's own question whether to write over the file.
click C_SaveAs
file Setup/words.txt
box warning * Yes
expect-log "chosen words.txt"

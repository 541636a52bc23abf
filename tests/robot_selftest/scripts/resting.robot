# A line of acting is over when the program is at rest, whatever keeps it busy.
start
mark-log
click C_Busy
expect L_Done busy
click C_Loop
expect L_Done loop
click C_Block
expect L_Done block
click C_Panel
expect L_Done panel
click C_Posted
expect L_Done posted
# Nothing shows that something is still to come; expecting tries again.
click C_Later
expect L_Done later
wait 0.1
# The program takes no input for a while, and the next line of acting waits for it to do so again.
click C_Deaf
expect L_Done deaf
click C_Loop
expect L_Done loop
# A screen that a handler shows until it is closed.
click C_Dialog
screen FrmPracticeDialog
expect-title Dialog
expect L_Text first
click C_Change
expect L_Text second
picture pictures/dialog.png
click C_Leave
screen FrmPracticeStart
expect-log "Dialog left"
mark-log
click C_Dialog
close
screen FrmPracticeStart
expect-log "Dialog left"
# A window of its own in place of the first, with a control of the same name as one there.
click C_Other
screen FrmPracticeOther
expect-title Other
expect E_Name "the other's name"
type E_Name !
close
screen FrmPracticeStart
expect-log "Other closed"
click C_Other
click C_Back
screen FrmPracticeStart
click C_Fields
close
screen FrmPracticeStart

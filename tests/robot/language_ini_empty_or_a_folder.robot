# An empty language file, and a folder in its place: English.
write Setup/Language.ini ""
start
screen FrmPres
expect C_Exit "Exit"
click C_Exit
expect-ended
delete Setup/Language.ini
make-folder Setup/Language.ini
start
screen FrmPres
expect C_Exit "Exit"
expect-file Setup/Language.ini folder

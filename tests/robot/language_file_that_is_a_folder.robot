# A folder in the language file's place is no file: the message, and English.
poke Setup/Language.ini 0 02
delete Setup/FrmDescFra.txt
make-folder Setup/FrmDescFra.txt
start
box information "The file of the languagge specificated doesn't exist. The program work in english" Ok
screen FrmPres
expect C_Exit "Exit"

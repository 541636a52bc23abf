# The English file is gone as well: the message comes back each time it is answered, until the file is there.
copy Setup/FrmDescEng.txt kept.txt
delete Setup/FrmDescEng.txt
start
box information "The file of the languagge specificated doesn't exist. The program work in english" Ok
box information "The file of the languagge specificated doesn't exist. The program work in english" Ok
box information "The file of the languagge specificated doesn't exist. The program work in english" Ok
copy kept.txt Setup/FrmDescEng.txt
box information "The file of the languagge specificated doesn't exist. The program work in english" Ok
screen FrmPres
expect C_Exit "Exit"

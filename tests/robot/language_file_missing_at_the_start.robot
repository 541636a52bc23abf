# The file of the chosen language is gone: the built-in message, and English follows.
poke Setup/Language.ini 0 03
delete Setup/FrmDescGer.txt
start
box information "The file of the languagge specificated doesn't exist. The program work in english" Ok
screen FrmPres
expect L_Titolo2 "ECR Programming Utility"
expect C_Exit "Exit"

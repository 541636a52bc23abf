# The largest number that the language file can hold: the message, and English.
poke Setup/Language.ini 0 FF
start
box information "The file of the languagge specificated doesn't exist. The program work in english" Ok
screen FrmPres
expect L_Titolo2 "ECR Programming Utility"

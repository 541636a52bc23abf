# A language is chosen whose file is gone: the message in the words of the language in use, then English, also in the
# language file.
delete Setup/FrmDescSpa.txt
start
expect E_ComPort 4
click C_LinguaSel
click Opt_Lang(1)
click C_Save
box information "The file of the chosen language was not found. The program continues in English." Ok
screen FrmPres
expect C_Exit "Exit"
expect-bytes Setup/Language.ini 0 00

# The same while German is in use: the message is German, what follows is English.
poke Setup/Language.ini 0 03
delete Setup/FrmDescSpa.txt
start
expect C_Exit "Beenden"
expect E_ComPort 4
click C_LinguaSel
click Opt_Lang(1)
click C_Save
box information "Die Datei der gewählten Sprache wurde nicht gefunden. Das Programm läuft auf Englisch weiter." Ok
screen FrmPres
expect C_Exit "Exit"
expect-bytes Setup/Language.ini 0 00

# The button below the picture of the display speaks the user's language, at rest and while a message runs.
poke Setup/Language.ini 0 01
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_MessageSetup
tab Tab_Print 2
expect C_Play "Reproducir"
click C_Play
expect C_Play "Detener"
click C_Play
expect C_Play "Reproducir"

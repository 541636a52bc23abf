# The pictures of the start screen are gone, and so is the flag: the screen works without them. The log tells of the flag.
delete Setup/Logo_Angolo.jpg
delete Setup/vermanto.bmp
delete Setup/UK.gif
delete Setup/ECRZ320.png
delete Setup/Logo_Angolo.gif
start
screen FrmPres
expect-log "selezione_lingua File not found"
expect E_ComPort 4
click C_Z320
screen FrmPrincipale

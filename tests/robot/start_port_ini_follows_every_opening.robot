# The port is noted each time the main menu opens.
start
expect E_ComPort 4
click C_Z320
screen FrmPrincipale
expect-bytes port.ini 0 04
click C_Back
screen FrmPres
paste E_ComPort 12
click C_Z300
screen FrmPrincipale
expect-bytes port.ini 0 0C
expect-file port.ini size 1

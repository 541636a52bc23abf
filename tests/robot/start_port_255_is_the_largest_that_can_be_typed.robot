# 255 is taken as it is.
start
expect E_ComPort 4
paste E_ComPort 255
click C_Z320
screen FrmPrincipale
expect-bytes port.ini 0 FF

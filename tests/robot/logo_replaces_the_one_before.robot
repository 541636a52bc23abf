# A second logo replaces the first, in Dati and in the register, and the receipt shows it.
start
expect E_ComPort 4
click C_Z320
click C_Logo
screen FrmSetLogo
click C_Sfoglia
file Logo/sample_logo.bmp
click C_Invia_Ecr
box plain * Ok
copy register/GRAPHIC.BIN first.bin
copy register/receipt.bmp first.bmp
copy Logo/sample_logo.bmp Logo/black.bmp
fill Logo/black.bmp 62 7776 FF
click C_Sfoglia
file Logo/black.bmp
click C_Invia_Ecr
box plain * Ok
expect-different register/GRAPHIC.BIN first.bin
expect-different register/receipt.bmp first.bmp
expect-bytes register/GRAPHIC.BIN 4 FFFFFFFF

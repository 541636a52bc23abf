# The logo screen is the same on the Z300.
register model Z300
start
expect E_ComPort 4
click C_Z300
click C_Logo
screen FrmSetLogo
click C_Sfoglia
file Logo/sample_logo.bmp
click C_Invia_Ecr
box plain * Ok
expect-same Dati/GRAPHIC.BIN register/GRAPHIC.BIN

# A logo is chosen and sent by keyboard alone.
start
expect E_ComPort 4
click C_Z320
click C_Logo
screen FrmSetLogo
expect-focus C_Sfoglia
key Enter
file Logo/sample_logo.bmp
expect-focus C_Invia_Ecr
key Enter
box plain * Ok
expect-file register/GRAPHIC.BIN exists

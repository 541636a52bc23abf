# A folder has the name of the file that the conversion makes.
start
expect E_ComPort 4
click C_Z320
click C_Logo
screen FrmSetLogo
make-folder Logo/GRAPHIC.BIN
click C_Sfoglia
file Logo/sample_logo.bmp
click C_Invia_Ecr
screen FrmSetLogo
expect-log "Send_LogoToEcr conversion error. Code: 8030000 Desc:Impossible to generate the entered file."

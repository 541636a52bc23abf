# The chosen bitmap is gone when it is sent: the conversion cannot open it.
start
expect E_ComPort 4
click C_Z320
click C_Logo
screen FrmSetLogo
copy Logo/sample_logo.bmp Logo/a.bmp
click C_Sfoglia
file Logo/a.bmp
delete Logo/a.bmp
click C_Invia_Ecr
screen FrmSetLogo
expect-log "Send_LogoToEcr conversion error. Code: 8010000 Desc:Impossible to open the entered file."

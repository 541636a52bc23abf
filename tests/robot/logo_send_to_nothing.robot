# No register on the port: the logo is converted and not sent, and only the log says so.
start
expect E_ComPort 4
click C_Z320
click C_Logo
screen FrmSetLogo
click C_Sfoglia
file Logo/sample_logo.bmp
register off
click C_Invia_Ecr
screen FrmSetLogo
expect-log "Send_LogoToEcr error. Code: 401 Desc: The USB-COM port cannot be opened."

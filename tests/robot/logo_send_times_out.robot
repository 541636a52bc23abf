# The exchange program hangs over the logo: a line in the log, no box, and the hanging process is ended.
start
expect E_ComPort 4
click C_Z320
click C_Logo
screen FrmSetLogo
click C_Sfoglia
file Logo/sample_logo.bmp
register hang 2
click C_Invia_Ecr
screen FrmSetLogo
expect-log "Send_LogoToEcr error. Code: 270F Desc: Timeout Error"
expect-process regwire.exe no
click C_Invia_Ecr
box plain * Ok

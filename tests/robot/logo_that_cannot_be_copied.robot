# The logo's file cannot be copied to Dati, where a folder has its name: the send fails on that, and the log has both.
start
expect E_ComPort 4
click C_Z320
click C_Logo
screen FrmSetLogo
make-folder Dati/GRAPHIC.BIN
click C_Sfoglia
file Logo/sample_logo.bmp
click C_Invia_Ecr
screen FrmSetLogo
expect-log "Send_LogoToEcr error. Code: 801 Desc: The specified file cannot be opened."
expect-log "FrmSetLogo Invia Ecr: Path or file access error"

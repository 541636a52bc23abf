# The conversion went well and the send cannot be run: a line in the log, no box, and the logo's file stays.
start
expect E_ComPort 4
click C_Z320
click C_Logo
screen FrmSetLogo
click C_Sfoglia
file Logo/sample_logo.bmp
register fails 2
click C_Invia_Ecr
screen FrmSetLogo
expect-log "Send_LogoToEcr error using regwire"
expect-same Logo/GRAPHIC.BIN Dati/GRAPHIC.BIN
expect-file register/GRAPHIC.BIN missing
expect-file register/receipt.bmp missing

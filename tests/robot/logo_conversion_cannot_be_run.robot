# The conversion cannot be run: the log says so, under the name of another routine, and nothing is sent.
start
expect E_ComPort 4
click C_Z320
click C_Logo
screen FrmSetLogo
click C_Sfoglia
file Logo/sample_logo.bmp
register fails
forget-calls
click C_Invia_Ecr
screen FrmSetLogo
expect-log "Send_PrgModeToEcr error using regpix"
expect-calls 1
expect-file Dati/GRAPHIC.BIN missing

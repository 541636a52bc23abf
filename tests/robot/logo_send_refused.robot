# The register is busy: a line in the log, no box; the next send goes through.
start
expect E_ComPort 4
click C_Z320
click C_Logo
screen FrmSetLogo
click C_Sfoglia
file Logo/sample_logo.bmp
register answer 4097 2
click C_Invia_Ecr
screen FrmSetLogo
expect-log "Send_LogoToEcr error. Code: 1001 Desc: The ECR side is in the state of BUSY."
expect-file Dati/GRAPHIC.BIN exists
expect-file register/GRAPHIC.BIN missing
register answer 0
click C_Invia_Ecr
box plain * Ok
expect-same Dati/GRAPHIC.BIN register/GRAPHIC.BIN

# The image goes, the call for the items is not made.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_SetVatRate
register fails 1
click C_Invia_Ecr
box critical * Ok
screen FrmSetVatRate
expect-log "Send_PrgPluToEcr error using regwire"

# The register answers the items with an error of its own: the failure box and the log line. That code too counts as a
# hanging exchange program here.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_SetVatRate
register answer 4098 1
click C_Invia_Ecr
box critical "Sending to the cash register failed.\nCheck that it is switched on, connected and not busy, then send again." Ok
screen FrmSetVatRate
expect-log "Send_PrgPluToEcr error. Code: 1002 Desc: The error was returned from the ECR side."

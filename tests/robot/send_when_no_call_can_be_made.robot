# The link check is answered and the call for the image is not made: the failure box, and a log line without a code.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_SetVatRate
register fails 0
click C_Invia_Ecr
box critical "Sending to the cash register failed.\nCheck that it is switched on, connected and not busy, then send again." Ok
expect-log "Send_PrgModeToEcr error using regwire"
expect-enabled C_Invia_Ecr yes

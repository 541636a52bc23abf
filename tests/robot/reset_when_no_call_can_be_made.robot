# The link check is answered, the call that sends is not made: the failure in a critical box, and the log line without a
# code.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
register fails 0
click C_Reset
box plain * Yes
box critical "Sending to the cash register failed.\nCheck that it is switched on, connected and not busy, then send again." Ok
expect-log "Send_PrgModeToEcr error using regwire"
screen FrmSetup

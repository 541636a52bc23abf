# There is an adapter and no register behind it: the field shows 0 in red, and the log says why.
register off
start
screen FrmPres
expect-colour E_ComPort red
expect E_ComPort 0
expect-log "Receive_ReportEcr error. File 12 Code: 401 Desc: The USB-COM port cannot be opened."
expect-calls 1

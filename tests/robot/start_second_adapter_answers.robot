# Two adapters, and the register hangs on the second: the first is tried and given up, the second is shown in green.
register ports 3 7
register on 7
start
expect E_ComPort 7
expect-colour E_ComPort green
expect-calls 2
expect-call 1 "send_cmd folder=. direction=0 file=12 timeout=2 port=3"
expect-call 2 "send_cmd folder=. direction=0 file=12 timeout=2 port=7"
expect-log "Receive_ReportEcr error. File 12 Code: 401 Desc: The USB-COM port cannot be opened."

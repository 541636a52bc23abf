# No register answers: the main menu opens all the same, with no banner. The log tells of both attempts.
start
expect E_ComPort 4
register off
mark-log
forget-calls
click C_Z320
screen FrmPrincipale
expect L_Release_Fw ""
expect-log "Get_Release error. Code: 401 Desc: The USB-COM port cannot be opened."
expect-log "Receive_ReportEcr error. File 12 Code: 401 Desc: The USB-COM port cannot be opened."
expect-calls 2
expect-call 1 "send_cmd folder=. direction=0 file=22 timeout=3 port=4"
expect-call 2 "send_cmd folder=. direction=0 file=12 timeout=2 port=4"

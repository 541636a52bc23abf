# Nothing in the port field: the main menu uses port 1.
start
expect E_ComPort 4
focus E_ComPort
key Backspace
expect E_ComPort ""
forget-calls
click C_Z320
screen FrmPrincipale
expect-calls 2
expect-call 1 "send_cmd folder=. direction=0 file=22 timeout=3 port=1"
expect-call 2 "send_cmd folder=. direction=0 file=12 timeout=2 port=1"
expect-bytes port.ini 0 01

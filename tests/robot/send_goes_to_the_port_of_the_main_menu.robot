# The port that was typed on the start screen is the one for all that follows.
register ports 4
start
expect E_ComPort 4
register on 200
paste E_ComPort 200
forget-calls
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_SetVatRate
click C_Invia_Ecr
screen FrmSetVatRate
expect-calls 8
expect-call 1 "send_cmd folder=. direction=0 file=22 timeout=3 port=200"
expect-call 2 "send_cmd folder=. direction=0 file=12 timeout=2 port=200"
expect-call 3 "send_cmd folder=. direction=0 file=0 timeout=120 port=200"
expect-call 4 "send_cmd folder=. direction=0 file=1 timeout=180 port=200"
expect-call 5 "send_cmd folder=. direction=0 file=22 timeout=3 port=200"
expect-call 6 "send_cmd folder=. direction=1 file=0 timeout=120 port=200"
expect-call 7 "send_cmd folder=. direction=0 file=22 timeout=3 port=200"
expect-call 8 "send_cmd folder=. direction=1 file=1 timeout=180 port=200"

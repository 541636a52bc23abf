# Nothing answers at first. Then the register comes to port 3, behind a silent port 2, and the model is clicked while the
# timer's search is on its way: it waits for the port that answers.
register ports 2 3
register off
start
screen FrmPres
expect-calls 2
register on 3
register delay 2
wait 4
click C_Z300
screen FrmPrincipale
expect-calls 3
expect-call 1 "send_cmd folder=. direction=0 file=12 timeout=2 port=2"
expect-call 2 "send_cmd folder=. direction=0 file=12 timeout=2 port=3"
expect-call 3 "send_cmd folder=. direction=0 file=22 timeout=3 port=3"
expect-bytes port.ini 0 03

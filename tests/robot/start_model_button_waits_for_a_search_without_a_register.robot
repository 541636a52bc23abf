# Nothing answers. A model that is chosen during the search opens when all ports were asked, and takes port 1.
register delay 1
register ports 2 3
register off
start
screen FrmPres
click C_Z320
screen FrmPrincipale
expect-calls 4
expect-call 1 "send_cmd folder=. direction=0 file=12 timeout=2 port=2"
expect-call 2 "send_cmd folder=. direction=0 file=12 timeout=2 port=3"
expect-call 3 "send_cmd folder=. direction=0 file=22 timeout=3 port=1"
expect-call 4 "send_cmd folder=. direction=0 file=12 timeout=2 port=1"
expect-bytes port.ini 0 01

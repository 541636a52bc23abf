# Each ping takes a second. A model that is chosen meanwhile waits for the search: the built-in port 2 is silent, the
# register on port 3 is found, and the main menu takes that port.
register delay 1
register ports 2 3
register on 3
start
screen FrmPres
click C_Z320
screen FrmPrincipale
expect-title "Vermanto ECR Programming Tool -   ECRZ320"
expect-calls 3
expect-call 1 "send_cmd folder=. direction=0 file=12 timeout=2 port=2"
expect-call 2 "send_cmd folder=. direction=0 file=12 timeout=2 port=3"
expect-call 3 "send_cmd folder=. direction=0 file=22 timeout=3 port=3"
expect-bytes port.ini 0 03

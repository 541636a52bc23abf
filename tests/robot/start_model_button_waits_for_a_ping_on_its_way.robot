# The ping takes a second. A model that is chosen meanwhile opens as soon as the ping has ended, and the search is not
# gone on with: the other adapter is not tried.
register delay 1
register ports 2 3
register off
start
screen FrmPres
click C_Z320
screen FrmPrincipale
expect-title "Vermanto ECR Programming Tool -   ECRZ320"
expect-calls 3
expect-call 1 "send_cmd folder=. direction=0 file=12 timeout=2 port=2"
expect-call 2 "send_cmd folder=. direction=0 file=22 timeout=3 port=1"
expect-call 3 "send_cmd folder=. direction=0 file=12 timeout=2 port=1"
expect-bytes port.ini 0 01

# The register answers on its port: the start screen shows the port's number in green. The question was the cheapest
# report, with a patience of two seconds.
start
screen FrmPres
expect E_ComPort 4
expect-colour E_ComPort green
expect-calls 1
expect-call 1 "send_cmd folder=. direction=0 file=12 timeout=2 port=4"
expect-file Dati/TIME.bin exists

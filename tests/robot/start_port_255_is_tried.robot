# The largest port number there is.
register ports 255
register on 255
start
expect E_ComPort 255
expect-colour E_ComPort green
expect-calls 1
expect-call 1 "send_cmd folder=. direction=0 file=12 timeout=2 port=255"

# Two adapters, and the register hangs on the first: the second is not tried any more.
register ports 3 7
register on 3
start
expect E_ComPort 3
expect-colour E_ComPort green
expect-calls 1
expect-call 1 "send_cmd folder=. direction=0 file=12 timeout=2 port=3"

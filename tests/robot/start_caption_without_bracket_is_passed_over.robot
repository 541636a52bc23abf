# A device that is called COM something without a bracket at the end is no port; the search goes on behind it.
register devices "COM express bus" "Modem (COM4) of the house" "USB Serial Port (COM4)"
start
expect E_ComPort 4
expect-colour E_ComPort green
expect-calls 1
expect-call 1 "send_cmd folder=. direction=0 file=12 timeout=2 port=4"

# Only capital letters name a port.
register devices "usb serial port (com9)" "USB Serial Port (COM4)"
start
expect E_ComPort 4
expect-calls 1
expect-call 1 "send_cmd folder=. direction=0 file=12 timeout=2 port=4"

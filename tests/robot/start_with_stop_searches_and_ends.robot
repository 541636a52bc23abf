# Started with STOP the program looks for the port, shows nothing to use, and ends.
start STOP
expect-ended
expect-log-like "Start Programm V. * So: *"
expect-log "End Programm"
expect-calls 1
expect-call 1 "send_cmd folder=. direction=0 file=12 timeout=2 port=4"

# No register at first. It is plugged in while the start screen stands there, and within three seconds the port turns
# green. The test that found it keeps no line of others out of the log: the end of the program is there.
register off
start
expect-colour E_ComPort red
expect E_ComPort 0
register on
wait 3
expect E_ComPort 4
expect-colour E_ComPort green
click C_Exit
expect-ended
expect-log "End Programm"

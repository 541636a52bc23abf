# The window's close box on the start screen ends the program as EXIT does.
start
expect E_ComPort 4
close
expect-ended
expect-log "End Programm"

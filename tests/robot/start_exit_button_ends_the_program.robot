# EXIT ends the program, with a last line in the log.
start
expect E_ComPort 4
click C_Exit
expect-ended
expect-log "End Programm"

# With DEBUG: the timer's test keeps the next line out of the log, whichever it is. A test that fails swallows its own
# failure; one that finds the port swallows the debug line that would say so.
register off
start DEBUG
expect-log "Test COM 4 KO"
mark-log
wait 3.1
expect-log "Test COM 4 KO"
expect-no-log "Receive_ReportEcr error. File 12 Code: 401 Desc: The USB-COM port cannot be opened."
register on
wait 3
expect E_ComPort 4
expect-no-log "Test COM 4 OK"
click C_Exit
expect-ended
expect-log "End Programm"

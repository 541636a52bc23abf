# With DEBUG: the timer's tests tell of the ports that they tried. Of their failures only the first search does, and
# every line of others is in the log, the end of the program included.
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
expect-log "Test COM 4 OK"
click C_Exit
expect-ended
expect-log "End Programm"

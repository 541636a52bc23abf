# The word counts in any writing, and also without a register the program ends.
register off
start stop
expect-ended
expect-log "Receive_ReportEcr error. File 12 Code: 401 Desc: The USB-COM port cannot be opened."
expect-log "End Programm"
expect-calls 1

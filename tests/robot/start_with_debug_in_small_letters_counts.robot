# The word counts in any writing.
start debug
expect-log "Test COM 4 OK"
expect E_ComPort 4

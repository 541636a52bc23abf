# While nothing answers, the search goes on every three seconds. Only the first one is in the log.
register off
start
expect-colour E_ComPort red
expect-calls 1
wait 3.1
expect-calls 1
expect-call 1 "send_cmd folder=. direction=0 file=12 timeout=2 port=4"
click C_Exit
expect-ended
expect-log "End Programm"
expect-lines Log/memo_log.txt 3

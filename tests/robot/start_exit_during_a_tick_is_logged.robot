# The program is left while a test of the timer is on its way: the end is in the log, the failure of that test is not.
register off
start
expect-calls 1
register delay 3
wait 3.5
click C_Exit
expect-ended
expect-log "End Programm"
expect-lines Log/memo_log.txt 3

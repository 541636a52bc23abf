# There is one log file. Each run adds its lines to it.
start
expect E_ComPort 4
click C_Exit
expect-ended
start
expect E_ComPort 4
click C_Exit
expect-ended
expect-lines Log/memo_log.txt 4

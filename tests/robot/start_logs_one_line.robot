# The log of a start, and of the end: program and system versions, and the last line. Nothing else is worth a line.
start
screen FrmPres
expect E_ComPort 4
expect-log-like "Start Programm V. *.*.* So: * x*"
expect-lines Log/memo_log.txt 1
click C_Exit
expect-ended
expect-log "End Programm"
expect-lines Log/memo_log.txt 2

# A caption that ends the search stands there for good: the log tells of it once, not every three seconds.
register devices "Old adapter (COMx)"
start
screen FrmPres
expect-log "Test_Com: Type mismatch"
wait 3.4
expect-lines Log/memo_log.txt 2
register ports 4
wait 3
expect E_ComPort 4
expect-colour E_ComPort green

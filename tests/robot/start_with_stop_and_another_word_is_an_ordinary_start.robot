# STOP counts as the whole command line only.
start "STOP NOW"
screen FrmPres
expect E_ComPort 4
wait 0.3
screen FrmPres
expect-no-log "End Programm"

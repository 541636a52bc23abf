# A port number that does not fit ends the search as well.
register devices "Far adapter (COM256)" "USB Serial Port (COM4)"
start
screen FrmPres
expect-log "Test_Com: Overflow"
expect E_ComPort 0
expect-calls 0

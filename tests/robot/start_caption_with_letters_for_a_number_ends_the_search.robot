# A caption whose number is none ends the search: the good port behind it is not looked at.
register devices "Old adapter (COMx)" "USB Serial Port (COM4)"
start
screen FrmPres
expect-log "Test_Com: Type mismatch"
expect E_ComPort 0
expect-colour E_ComPort black
expect-calls 0

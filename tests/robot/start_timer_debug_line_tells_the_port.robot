# With DEBUG the timer that finds a port in use says so, once: here the main menu has taken port 1.
register off
start DEBUG
expect-log "Test COM 4 KO"
click C_Z320
screen FrmPrincipale
wait 3
expect-log "Timer_TestCom: 1"

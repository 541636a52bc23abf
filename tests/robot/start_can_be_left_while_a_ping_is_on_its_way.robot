# EXIT works at once, also while a ping of four seconds is on its way.
register delay 4
start
screen FrmPres
click C_Exit
expect-ended
expect-log "End Programm"

# Back and the close box both lead from the main menu to the start screen, which stands as it was left. The program runs
# on.
start
expect E_ComPort 4
click C_Z320
click C_Back
screen FrmPres
expect E_ComPort 4
expect-colour E_ComPort green
click C_Z300
screen FrmPrincipale
close
screen FrmPres
expect-no-log "End Programm"
click C_Exit
expect-ended
expect-log "End Programm"

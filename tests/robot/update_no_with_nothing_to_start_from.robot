# Neither a file nor a starting file: the log says so, the wrong-register message comes, and the main menu closes.
delete Dati/ECRZ320/V105
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * No
box plain "The cash register or its programming does not match the chosen model, or the register does not answer.\nCheck the cable, the port and the model on the start screen, then try again." Ok
screen FrmPres
expect-log "FrmPrincipale C_ModificaProgrammazione: File not found"
expect-file Dati/PRG_MODE.BIN size 0

# Nothing answers: the default files have been laid down already, then the wrong-register message comes and the program
# ends at once.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
register off
click C_Reset
box plain * Yes
box plain "The cash register or its programming does not match the chosen model, or the register does not answer.\nCheck the cable, the port and the model on the start screen, then try again." Ok
expect-ended
expect-no-log "End Programm"
expect-same Dati/PRG_MODE.BIN Dati/ECRZ320/ECRZ320_PRG_MODE.BIN
expect-same Dati/PRG_PLU.BIN Dati/ECRZ320/ECRZ320_PRG_PLU.BIN
expect-same register/PRG_MODE.BIN register/samples/Z320/PRG_MODE.BIN

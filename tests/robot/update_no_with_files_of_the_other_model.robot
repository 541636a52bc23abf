# The files on this PC are those of a Z320 and the Z300 was chosen: turned away, and the main menu closes.
copy register/PRG_MODE.BIN Dati/PRG_MODE.BIN
start
expect E_ComPort 4
click C_Z300
click C_ModificaProgrammazione
box plain * No
box plain "The cash register or its programming does not match the chosen model, or the register does not answer.\nCheck the cable, the port and the model on the start screen, then try again." Ok
screen FrmPres
expect-same Dati/PRG_MODE.BIN register/PRG_MODE.BIN

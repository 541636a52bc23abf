# The default image is one of the other model: it is copied, and turned away.
copy Dati/ECRZ300/ECRZ300_PRG_MODE.BIN Dati/ECRZ320/ECRZ320_PRG_MODE.BIN
start
expect E_ComPort 4
click C_Z320
click C_NuovaProgrammazione
box plain * Yes
box plain "The cash register or its programming does not match the chosen model, or the register does not answer.\nCheck the cable, the port and the model on the start screen, then try again." Ok
screen FrmPrincipale
expect-same Dati/PRG_MODE.BIN Dati/ECRZ300/ECRZ300_PRG_MODE.BIN

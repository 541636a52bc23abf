# The image is there and the items are not: only the items are supplied.
copy register/PRG_MODE.BIN Dati/PRG_MODE.BIN
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * No
screen FrmSetup
expect-same Dati/PRG_MODE.BIN register/PRG_MODE.BIN
expect-same Dati/PRG_PLU.BIN Dati/ECRZ320/ECRZ320_PRG_PLU.BIN

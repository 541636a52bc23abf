# No files yet: the image comes from the folder V105 of the model, the items from the model's folder itself.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * No
screen FrmSetup
expect-same Dati/PRG_MODE.BIN Dati/ECRZ320/V105/ECRZ320_PRG_MODE.BIN
expect-same Dati/PRG_PLU.BIN Dati/ECRZ320/ECRZ320_PRG_PLU.BIN
expect-different Dati/PRG_MODE.BIN Dati/ECRZ320/ECRZ320_PRG_MODE.BIN

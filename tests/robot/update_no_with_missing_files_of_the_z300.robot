# The same with the Z300's own files.
start
expect E_ComPort 4
click C_Z300
click C_ModificaProgrammazione
box plain * No
screen FrmSetup
expect-same Dati/PRG_MODE.BIN Dati/ECRZ300/V105/ECRZ300_PRG_MODE.BIN
expect-same Dati/PRG_PLU.BIN Dati/ECRZ300/ECRZ300_PRG_PLU.BIN

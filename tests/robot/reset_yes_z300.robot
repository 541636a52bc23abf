# The same on the Z300, with its own defaults.
register model Z300
start
expect E_ComPort 4
click C_Z300
click C_ModificaProgrammazione
box plain * Yes
click C_Reset
box plain * Yes
screen FrmSetup
expect-same register/PRG_MODE.BIN Dati/ECRZ300/ECRZ300_PRG_MODE.BIN
expect-same register/PRG_PLU.BIN Dati/ECRZ300/ECRZ300_PRG_PLU.BIN

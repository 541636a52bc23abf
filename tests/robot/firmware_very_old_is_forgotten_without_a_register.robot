# The very old register is unplugged: the next visit to the main menu meets none, and defaults are copied again.
register release none
start
expect E_ComPort 4
click C_Z320
click C_Back
register off
click C_Z320
click C_NuovaProgrammazione
box plain * Yes
screen FrmSetup
expect-same Dati/PRG_MODE.BIN Dati/ECRZ320/ECRZ320_PRG_MODE.BIN

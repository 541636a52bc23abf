# Release 0.80 is greeted as any other, and a new programming starts from the defaults.
register banner "ECRZ300/ECRZ320F    FW rel.0.80     "
start
expect E_ComPort 4
click C_Z320
expect L_Release_Fw "ECRZ300/ECRZ320F    FW rel.0.80     "
click C_NuovaProgrammazione
box plain * Yes
screen FrmSetup
expect-same Dati/PRG_MODE.BIN Dati/ECRZ320/ECRZ320_PRG_MODE.BIN

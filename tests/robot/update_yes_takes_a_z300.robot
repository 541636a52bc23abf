# The same with a Z300.
register model Z300
start
expect E_ComPort 4
click C_Z300
click C_ModificaProgrammazione
box plain * Yes
screen FrmSetup
expect-same Dati/PRG_MODE.BIN register/samples/Z300/PRG_MODE.BIN
expect-same Dati/PRG_PLU.BIN register/samples/Z300/PRG_PLU.BIN
click C_ProgramMode
click C_SetVatRate
expect E_VatRate(1) "20.000 %"
expect E_VatRate(4) "2.100 %"

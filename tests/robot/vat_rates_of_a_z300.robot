# The rates of a Z300, odd ones among them, are changed and saved the same way.
register model Z300
start
expect E_ComPort 4
click C_Z300
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_SetVatRate
expect E_VatRate(1) "20.000 %"
expect E_VatRate(2) "10.000 %"
expect E_VatRate(3) "5.500 %"
expect E_VatRate(4) "2.100 %"
focus E_VatRate(4)
expect E_VatRate(4) "2100"
key Ctrl+a
keys "2750"
click C_Salva
expect E_VatRate(4) "2.75 %"
expect-bytes Dati/PRG_MODE.BIN 38 00000200000001000055000050270000
copy Dati/PRG_MODE.BIN saved.bin
poke saved.bin 50 00210000
expect-same saved.bin register/PRG_MODE.BIN

# A rate that is deleted is zero: 0 % on the screen, four zero bytes in the file.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_SetVatRate
focus E_VatRate(1)
key Ctrl+a
key Delete
expect E_VatRate(1) ""
click C_Salva
expect E_VatRate(1) "0 %"
expect-bytes Dati/PRG_MODE.BIN 38 00000000000001000050000000400000

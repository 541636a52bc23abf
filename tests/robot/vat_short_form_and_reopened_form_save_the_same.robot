# 7.5 % after leaving the field, 7.500 % after opening the screen again; both save the same bytes.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_SetVatRate
focus E_VatRate(1)
key Ctrl+a
keys "7500"
click C_Salva
expect E_VatRate(1) "7.5 %"
expect-bytes Dati/PRG_MODE.BIN 38 00750000
copy Dati/PRG_MODE.BIN first.bin
click C_Annulla
click C_SetVatRate
expect E_VatRate(1) "7.500 %"
click C_Salva
expect-same Dati/PRG_MODE.BIN first.bin

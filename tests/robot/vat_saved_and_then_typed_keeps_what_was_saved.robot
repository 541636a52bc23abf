# What was saved stays; what was typed behind it is gone.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_SetVatRate
paste E_VatRate(1) 15000
click C_Salva
paste E_VatRate(1) 16000
click C_Annulla
click C_SetVatRate
expect E_VatRate(1) "15.000 %"
expect-bytes Dati/PRG_MODE.BIN 38 00500100

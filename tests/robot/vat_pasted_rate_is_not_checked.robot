# The limit acts on typing alone: a pasted rate is taken as it is.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_SetVatRate
focus E_VatRate(1)
paste E_VatRate(1) 1234567
nobox
expect E_VatRate(1) "1234567"
click C_Salva
expect E_VatRate(1) "1234.567 %"
expect-bytes Dati/PRG_MODE.BIN 38 67452301

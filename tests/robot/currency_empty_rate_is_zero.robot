# An empty rate counts as 0; a zero is shown when its field is entered.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_ForeignCurrencyProgram
focus E_ExchangeRate(2)
key Ctrl+a
key Delete
focus E_Name(2)
expect E_ExchangeRate(2) "0.00"
focus E_ExchangeRate(2)
expect E_ExchangeRate(2) "0"
key Enter
expect-focus C_Salva
key Enter
expect-bytes Dati/PRG_MODE.BIN 2971 00000000

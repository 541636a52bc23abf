# A rate of 12345 with three decimals: entered it shows its digits, and another position moves only the point.
poke register/PRG_MODE.BIN 2937 030245230100
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_ForeignCurrencyProgram
expect E_ExchangeRate(0) "12.345"
focus E_ExchangeRate(0)
expect E_ExchangeRate(0) "12345"
choose Cmb_DecimalPositionForExchangedRate(0) "2"
expect E_ExchangeRate(0) "123.45"
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 2937 02
expect-bytes Dati/PRG_MODE.BIN 2939 45230100

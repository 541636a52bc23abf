# A rate without decimals stays a plain number inside and outside of its field.
poke register/PRG_MODE.BIN 2953 000242000000
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_ForeignCurrencyProgram
expect E_ExchangeRate(1) "42"
focus E_ExchangeRate(1)
expect E_ExchangeRate(1) "42"
focus E_Name(1)
expect E_ExchangeRate(1) "42"

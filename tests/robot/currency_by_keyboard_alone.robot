# A currency by keyboard: its name, its rate, Enter to the save button and Enter once more.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_ForeignCurrencyProgram
screen FrmFCRatingSetting
expect-focus E_Name(0)
keys "Euro"
key Tab
expect-focus E_ExchangeRate(0)
expect E_ExchangeRate(0) "92"
key Ctrl+a
keys "195583"
key Tab
expect-focus Cmb_DecimalPositionForRate(0)
expect E_ExchangeRate(0) "1955.83"
key Up 2
key Tab
expect-focus Cmb_DecimalPositionForExchangedRate(0)
key Down
expect E_ExchangeRate(0) "195.583"
key Shift+Tab 2
expect-focus E_ExchangeRate(0)
key Enter
expect-focus C_Salva
key Enter
expect-bytes Dati/PRG_MODE.BIN 2927 4575726F202020202020030083551900

# A currency name keeps ten characters; an eleventh is not taken.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_ForeignCurrencyProgram
expect-maxlength E_Name(3) 10
type E_Name(3) "ABCDEFGHIJK"
expect E_Name(3) "ABCDEFGHIJ"
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 2975 4142434445464748494A

# The largest price is taken without a word.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_DepartmentProgram
focus E_Price
expect E_Price ""
keys "9999999"
nobox
expect E_Price "9999999"
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 347 99999909
expect-cell Fg_Department 1 8 "99999.99"

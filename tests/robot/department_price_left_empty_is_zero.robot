# A price that is deleted becomes 0.00 when it is left, and four zero bytes.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_DepartmentProgram
row Fg_Department 18
focus E_Price
expect E_Price "150"
key Ctrl+a
key Delete
expect E_Price ""
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 717 0107020000000000
row Fg_Department 18
expect E_Price "0.00"

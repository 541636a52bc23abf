# Letters beyond the plain ones go to the register in its own codes, the euro sign too. Two of them share a code and come
# back as one.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_DepartmentProgram
type E_DeptName "é€ñÅŒœßÜ·"
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 329 F0F888D5EAEAEBE8FF202020
expect-cell Fg_Department 1 1 "é€ñÅŒŒßÜ·   "
row Fg_Department 1
expect E_DeptName "é€ñÅŒŒßÜ·   "

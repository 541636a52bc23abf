# A name shows with its blanks; entering the field cuts them and selects the whole, so that typing replaces it. Saved, it
# is padded again. Blanks in front stay.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_DepartmentProgram
expect E_DeptName "Hot drinks  "
focus E_DeptName
expect E_DeptName "Hot drinks"
keys "  Tea"
expect E_DeptName "  Tea"
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 329 202054656120202020202020
row Fg_Department 1
expect E_DeptName "  Tea       "

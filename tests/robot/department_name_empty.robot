# An empty name is twelve blanks.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_DepartmentProgram
focus E_DeptName
key Backspace
expect E_DeptName ""
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 329 20202020202020202020202008
expect-cell Fg_Department 1 1 "            "

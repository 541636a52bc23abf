# 11 is too much: the critical box, and 1 is left. So are 15 and 17.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_DepartmentProgram
focus E_DeptGroupNumber
key Ctrl+a
keys "11"
box critical "The value is too high. The last digit was removed." Ok
expect E_DeptGroupNumber "1"
expect-focus E_DeptGroupNumber
keys "5"
box critical "The value is too high. The last digit was removed." Ok
expect E_DeptGroupNumber "1"
keys "7"
box critical "The value is too high. The last digit was removed." Ok
expect E_DeptGroupNumber "1"
keys "x"
nobox
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 344 01

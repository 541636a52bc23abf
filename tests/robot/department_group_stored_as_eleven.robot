# A group that no register has: loading it brings the box and cuts it. It counts as changed.
poke register/PRG_MODE.BIN 366 0B
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_DepartmentProgram
expect-cell Fg_Department 2 4 "11"
row Fg_Department 2
box critical "The value is too high. The last digit was removed." Ok
expect E_DeptGroupNumber "1"
expect E_DeptName "Cheese      "
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 365 0101

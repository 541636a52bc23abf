# A department of group 10 counts as changed whenever it is loaded, since 10 is not the number that is stored; also behind
# another one of that group. The load at the opening leaves no mark.
poke register/PRG_MODE.BIN 344 10
poke register/PRG_MODE.BIN 366 10
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_DepartmentProgram
expect E_DeptGroupNumber "10"
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 343 0010
expect Cmb_DepartmentNumber 2
expect E_DeptGroupNumber "10"
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 365 0110
row Fg_Department 19
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 739 0110

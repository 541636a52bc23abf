# Group 10 is taken as typed and stored as 16.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_DepartmentProgram
focus E_DeptGroupNumber
key Ctrl+a
keys "10"
nobox
expect E_DeptGroupNumber "10"
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 344 10
expect-cell Fg_Department 1 4 "10"
row Fg_Department 1
expect E_DeptGroupNumber "10"

# 16 is the same group as the register stores it: without a word it becomes 10.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_DepartmentProgram
focus E_DeptGroupNumber
key Ctrl+a
keys "16"
nobox
expect E_DeptGroupNumber "10"
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 344 10

# Entering a name cuts its blanks, and the shorter text marks the department; a name that fills its field does not.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_DepartmentProgram
row Fg_Department 6
focus E_DeptName
expect E_DeptName "Panini & pan"
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 453 00
row Fg_Department 7
focus E_DeptName
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 475 01

# A walk through the table by keyboard: a save leaves the focus on Save, and the next Enter saves the next department.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_DepartmentProgram
focus C_Salva
key Enter
expect Cmb_DepartmentNumber 2
expect-focus C_Salva
key Enter 3
expect Cmb_DepartmentNumber 5
expect-bytes Dati/PRG_MODE.BIN 341 080000

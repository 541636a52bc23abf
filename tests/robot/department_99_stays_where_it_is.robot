# Saving the last department stays there.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_DepartmentProgram
row Fg_Department 99
type E_DeptName "Last"
click C_Salva
expect Cmb_DepartmentNumber 99
expect E_DeptName "Last        "
expect-bytes Dati/PRG_MODE.BIN 2485 4C617374202020202020202008

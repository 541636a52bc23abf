# Letters of the code page that the register lacks become its sign for an unknown one.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_DepartmentProgram
type E_DeptName "aåb"
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 329 617F62202020202020202020
row Fg_Department 1
expect E_DeptName "a×b         "

# The first byte of such a pair at a name's end is the same hard stop.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_DepartmentProgram
type E_DeptName "OlÃ"
click C_Salva
expect-ended
expect-same Dati/PRG_MODE.BIN register/PRG_MODE.BIN

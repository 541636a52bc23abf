# Letters that the code page lacks are left out, and the log tells of each; the others are saved.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_DepartmentProgram
type E_DeptName "AλBЖC"
expect E_DeptName "AλBЖC"
click C_Salva
expect-log "sostituzione_to_ecr : Index out of range"
expect-lines Log/memo_log.txt 3
expect-bytes Dati/PRG_MODE.BIN 329 414243202020202020202020

# A pair of bytes that is not known stops the program at once. Nothing is written, and nothing more is logged.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_DepartmentProgram
type E_DeptName "sÃ¥"
expect-lines Log/memo_log.txt 1
click C_Salva
expect-ended
expect-lines Log/memo_log.txt 1
expect-same Dati/PRG_MODE.BIN register/PRG_MODE.BIN

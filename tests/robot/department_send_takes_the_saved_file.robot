# A saved department goes to the register, one that was only typed does not.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_DepartmentProgram
type E_DeptName "Saved"
click C_Salva
type E_DeptName "Typed"
forget-calls
click C_Invia_Ecr
screen FrmDepartmentProgram
expect-calls 4
expect E_DeptName "Typed"
expect-same register/PRG_MODE.BIN Dati/PRG_MODE.BIN
expect-bytes register/PRG_MODE.BIN 329 536176656420202020202020
expect-bytes register/PRG_MODE.BIN 351 436865657365202020202020
expect-focus C_Invia_Ecr

# Nothing answers before the send: the wrong-register message, and the program ends.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_DepartmentProgram
type E_DeptName "Saved"
click C_Salva
register off
click C_Invia_Ecr
box plain "The cash register or its programming does not match the chosen model, or the register does not answer.\nCheck the cable, the port and the model on the start screen, then try again." Ok
expect-ended
expect-bytes Dati/PRG_MODE.BIN 329 536176656420202020202020

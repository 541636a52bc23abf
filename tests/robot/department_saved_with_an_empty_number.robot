# No number, no department: a save writes nothing, and the log tells.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_DepartmentProgram
focus Cmb_DepartmentNumber
key Backspace
expect Cmb_DepartmentNumber ""
click C_Salva
expect-log "FrmDepartmentProgram Salva: Index out of range"
expect-same Dati/PRG_MODE.BIN register/PRG_MODE.BIN
screen FrmDepartmentProgram

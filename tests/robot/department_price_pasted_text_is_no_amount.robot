# A pasted word is no price: it stays as it is when the field is left, and Save writes nothing. The log tells of both.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_DepartmentProgram
paste E_Price "free"
nobox
focus Cmb_Tax
expect E_Price "free"
expect-log "FrmDepartmentProgram E_Price: Type mismatch"
click C_Salva
expect-log "FrmDepartmentProgram Salva: Type mismatch"
expect Cmb_DepartmentNumber 1
expect-same Dati/PRG_MODE.BIN register/PRG_MODE.BIN

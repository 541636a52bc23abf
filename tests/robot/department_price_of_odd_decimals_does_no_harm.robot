# Decimals that no register has: the editor opens without prices, and a save writes nothing, not even a price of zero.
# Once the decimals are set right the price is what it was.
poke register/PRG_MODE.BIN 67 FF
poke register/PRG_MODE.BIN 347 50010000
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_DepartmentProgram
screen FrmDepartmentProgram
expect E_Price ""
expect-cell Fg_Department 1 8 ""
click C_Salva
nobox
expect-log "FrmDepartmentProgram Salva: Overflow"
expect Cmb_DepartmentNumber 1
expect-bytes Dati/PRG_MODE.BIN 347 50010000
expect-same Dati/PRG_MODE.BIN register/PRG_MODE.BIN
# A department without a price is not saved either.
row Fg_Department 17
expect E_DeptName "Gift baskets"
click C_Salva
expect Cmb_DepartmentNumber 17
expect-same Dati/PRG_MODE.BIN register/PRG_MODE.BIN

click C_Annulla
click C_SystemOption
choose Cmb_DecimalPosition #2
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 67 02
click C_Annulla
click C_DepartmentProgram
expect E_Price "1.50"
click C_Salva
expect Cmb_DepartmentNumber 2
expect-bytes Dati/PRG_MODE.BIN 347 50010000

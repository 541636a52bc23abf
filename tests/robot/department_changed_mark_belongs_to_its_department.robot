# A change that was not saved leaves its mark: when that department is saved later, it counts as changed. Others do not.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_DepartmentProgram
row Fg_Department 3
choose Cmb_Tax "1. VAT rate 1"
row Fg_Department 5
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 431 00
row Fg_Department 3
expect Cmb_Tax "3. VAT rate 3"
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 387 010203

# Decimals that no register has: the editor opens, and a save keeps the price.
poke register/PRG_MODE.BIN 67 FF
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_DepartmentProgram
screen FrmDepartmentProgram
row Fg_Department 17
expect E_DeptName "Gift baskets"
click C_Salva
expect Cmb_DepartmentNumber 18

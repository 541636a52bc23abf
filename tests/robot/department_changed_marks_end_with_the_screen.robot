# The marks go with the screen: after closing and opening it nothing counts as changed.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_DepartmentProgram
row Fg_Department 3
choose Cmb_Tax "1. VAT rate 1"
click C_Annulla
click C_DepartmentProgram
row Fg_Department 3
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 387 00

# The fourth price type has no choice: the list keeps the one before, and a save writes that one.
poke register/PRG_MODE.BIN 364 03
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_DepartmentProgram
row Fg_Department 20
expect Cmb_PriceType "1. Normal"
row Fg_Department 2
expect Cmb_PriceType "1. Normal"
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 364 01

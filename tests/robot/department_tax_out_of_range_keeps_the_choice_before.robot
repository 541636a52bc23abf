# Tax numbers that no choice has: the lists keep the choices of the department before, the grid's cells stay empty.
poke register/PRG_MODE.BIN 367 05FF
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_DepartmentProgram
expect-cell Fg_Department 2 5 ""
expect-cell Fg_Department 2 6 ""
row Fg_Department 18
expect Cmb_Tax "2. VAT rate 2"
expect Cmb_TakeOutTax "0. Not taxable"
row Fg_Department 2
expect Cmb_Tax "2. VAT rate 2"
expect Cmb_TakeOutTax "0. Not taxable"
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 367 0200
expect-cell Fg_Department 2 5 "VAT rate 2"

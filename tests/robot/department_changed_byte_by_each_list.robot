# A pick in each of the six lists marks the department; so does the group.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_DepartmentProgram
row Fg_Department 31
choose Cmb_Status1 "1. Negative"
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 1003 01
expect Cmb_DepartmentNumber 32
choose Cmb_Status2 "1. Single item"
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 1025 01
choose Cmb_Halo "1. Up to 0.99"
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 1047 01
choose Cmb_Tax "2. VAT rate 2"
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 1069 01
choose Cmb_TakeOutTax "2. VAT rate 2"
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 1091 01
choose Cmb_PriceType "1. Normal"
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 1113 01
focus E_DeptGroupNumber
keys "4"
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 1135 01
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 1157 00

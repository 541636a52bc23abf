# Every field of a department is changed and saved: its 22 bytes, the row of the grid, and nothing else.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_DepartmentProgram
row Fg_Department 21
type E_DeptName "Ice"
focus E_Price
keys "1250"
choose Cmb_PriceType "2. Preset"
focus E_DeptGroupNumber
keys "9"
choose Cmb_Tax "3. VAT rate 3"
choose Cmb_TakeOutTax "4. VAT rate 4"
choose Cmb_Status1 "1. Negative"
choose Cmb_Status2 "1. Single item"
choose Cmb_Halo "3. Up to 99.99"
click C_Salva
expect Cmb_DepartmentNumber 22
expect-bytes Dati/PRG_MODE.BIN 769 4963652020202020202020203B020109030450120000
expect-cell Fg_Department 21 1 "Ice         "
expect-cell Fg_Department 21 2 "Negative"
expect-cell Fg_Department 21 3 "Single item"
expect-cell Fg_Department 21 4 "9"
expect-cell Fg_Department 21 5 "VAT rate 3"
expect-cell Fg_Department 21 6 "VAT rate 4"
expect-cell Fg_Department 21 7 "Up to 99.99"
expect-cell Fg_Department 21 8 "12.50"
copy Dati/PRG_MODE.BIN saved.bin
poke saved.bin 769 44455054203231202020202000000000010100000000
expect-bytes register/PRG_MODE.BIN 769 44455054203231202020202000000000010100000000
expect-same saved.bin register/PRG_MODE.BIN
row Fg_Department 21
expect E_DeptName "Ice         "
expect E_Price "12.50"
expect Cmb_PriceType "2. Preset"
expect E_DeptGroupNumber "9"
expect Cmb_Tax "3. VAT rate 3"
expect Cmb_TakeOutTax "4. VAT rate 4"
expect Cmb_Status1 "1. Negative"
expect Cmb_Status2 "1. Single item"
expect Cmb_Halo "3. Up to 99.99"

# The same in the department editor: labels, choices with their digits, grid headings.
write Setup/FrmDescEng.txt ""
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_DepartmentProgram
expect-title "Department Program"
expect L_DepartmentNumber "Department Number:"
expect L_DeptName "Department Name:"
expect L_Status1 "Status 1"
expect L_Status2 "Status 2"
expect L_Halo "HDLO"
expect L_PriceType "Price Type"
expect L_DeptGroupNumber "Dept Group Number"
expect L_DeptGroupMax "(Max Value 10)"
expect L_Tax "TAX"
expect L_TakeOutTax "Take Out Tax"
expect L_Price "Price :"
expect L_PriceMax "(Max Value 9999999)"
expect-items Cmb_Status1 "0. POSITIVE" "1. NEGATIVE"
expect-items Cmb_Status2 "0. NORMAL" "1. SINGLE"
expect-items Cmb_Halo "0. NO LIMIT" "1. (0 - 0.99)" "2. (0 - 9.99)" "3. (0 - 99.99)" "4. (0 - 999.99)"
expect-items Cmb_PriceType "0. OPEN" "1. NORMAL" "2. PRESET"
expect-items Cmb_Tax "0. NON TAXABLE" "1. TAX1 TAXABLE" "2. TAX2 TAXABLE" "3. TAX3 TAXABLE" "4. TAX4 TAXABLE"
expect-items Cmb_TakeOutTax "0. NON TAXABLE" "1. TAX1 TAXABLE" "2. TAX2 TAXABLE" "3. TAX3 TAXABLE" "4. TAX4 TAXABLE"
expect-cell Fg_Department 0 0 "Dept"
expect-cell Fg_Department 0 1 "Name"
expect-cell Fg_Department 0 2 "Status 1"
expect-cell Fg_Department 0 3 "Status 2"
expect-cell Fg_Department 0 4 "Group"
expect-cell Fg_Department 0 5 "Tax"
expect-cell Fg_Department 0 6 "Take Out Tax"
expect-cell Fg_Department 0 7 "HDLO"
expect-cell Fg_Department 0 8 "Price"
expect-cell Fg_Department 19 2 "NEGATIVE"
expect-cell Fg_Department 1 3 "NORMAL"
expect-cell Fg_Department 1 5 "TAX2 TAXABLE"
expect-cell Fg_Department 15 7 "(0 - 999.99)"

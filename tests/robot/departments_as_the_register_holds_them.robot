# The department editor of a Z320 at its opening: the first department, all texts in English, the focus on the number
# list. Nothing is changed by opening it.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_DepartmentProgram
screen FrmDepartmentProgram
expect-title "Departments"
expect-focus Cmb_DepartmentNumber
expect Cmb_DepartmentNumber 1
expect-count Cmb_DepartmentNumber 99
expect L_DepartmentNumber "Department number"
expect L_DeptName "Department name"
expect L_Status1 "Sign"
expect L_Status2 "Sale type"
expect L_Halo "Digit limit (HDLO)"
expect L_PriceType "Price type"
expect L_DeptGroupNumber "Group number"
expect L_DeptGroupMax "(max. 10)"
expect L_Tax "Tax"
expect L_TakeOutTax "Take-out tax"
expect L_Price "Price"
expect L_PriceMax "(max. 9999999)"
expect E_DeptName "Hot drinks  "
expect-maxlength E_DeptName 12
expect E_Price "0.00"
expect E_DeptGroupNumber "1"
expect-items Cmb_Status1 "0. Positive" "1. Negative"
expect-items Cmb_Status2 "0. Normal" "1. Single item"
expect-items Cmb_Halo "0. No limit" "1. Up to 0.99" "2. Up to 9.99" "3. Up to 99.99" "4. Up to 999.99"
expect-items Cmb_PriceType "0. Open" "1. Normal" "2. Preset"
expect-items Cmb_Tax "0. Not taxable" "1. VAT rate 1" "2. VAT rate 2" "3. VAT rate 3" "4. VAT rate 4"
expect-items Cmb_TakeOutTax "0. Not taxable" "1. VAT rate 1" "2. VAT rate 2" "3. VAT rate 3" "4. VAT rate 4"
expect Cmb_Status1 "0. Positive"
expect Cmb_Status2 "0. Normal"
expect Cmb_Halo "0. No limit"
expect Cmb_PriceType "0. Open"
expect Cmb_Tax "2. VAT rate 2"
expect Cmb_TakeOutTax "2. VAT rate 2"
expect-same Dati/PRG_MODE.BIN register/PRG_MODE.BIN

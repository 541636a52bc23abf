# A department from its number to its save by keyboard: Tab from field to field, arrows in the lists.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_DepartmentProgram
expect-focus Cmb_DepartmentNumber
keys "21"
key Tab
expect-focus E_DeptName
keys "Soup"
key Tab
expect-focus E_Price
keys "480"
key Tab
expect-focus Cmb_PriceType
expect E_Price "4.80"
key Down 2
expect Cmb_PriceType "2. Preset"
key Tab
expect-focus E_DeptGroupNumber
keys "3"
key Tab
expect-focus Cmb_Tax
key Up
expect Cmb_Tax "0. Not taxable"
key Tab
expect-focus Cmb_TakeOutTax
key Down 3
expect Cmb_TakeOutTax "4. VAT rate 4"
key Tab
expect-focus Cmb_Status1
key Down
expect Cmb_Status1 "1. Negative"
key Tab
expect-focus Cmb_Status2
key Down
expect Cmb_Status2 "1. Single item"
key Tab
expect-focus Cmb_Halo
key Down
expect Cmb_Halo "1. Up to 0.99"
key Tab
expect-focus C_Salva
key Enter
expect Cmb_DepartmentNumber 22
expect-bytes Dati/PRG_MODE.BIN 769 536F757020202020202020201B020103000480040000
key Tab
expect-focus C_Invia_Ecr
key Enter
expect-same register/PRG_MODE.BIN Dati/PRG_MODE.BIN
key Tab
expect-focus C_Annulla
key Enter
screen FrmProgramMode

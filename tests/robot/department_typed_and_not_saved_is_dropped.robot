# What was typed and not saved is gone when another department is loaded and when the screen is left. There is no
# question.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_DepartmentProgram
type E_DeptName "Typed"
choose Cmb_Tax "4. VAT rate 4"
choose Cmb_DepartmentNumber 2
nobox
expect E_DeptName "Cheese      "
choose Cmb_DepartmentNumber 1
expect E_DeptName "Hot drinks  "
expect Cmb_Tax "2. VAT rate 2"
type E_DeptName "Typed"
row Fg_Department 1
expect E_DeptName "Hot drinks  "
type E_DeptName "Typed"
click C_Annulla
screen FrmProgramMode
click C_DepartmentProgram
expect E_DeptName "Hot drinks  "
type E_DeptName "Typed"
close
screen FrmProgramMode
expect-same Dati/PRG_MODE.BIN register/PRG_MODE.BIN

# Backspace in the number list loads as well; an empty list and a 0 keep the department on the screen.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_DepartmentProgram
focus Cmb_DepartmentNumber
keys "19"
expect E_DeptName "Plate back  "
key Backspace
expect Cmb_DepartmentNumber "1"
expect E_DeptName "Hot drinks  "
key Backspace
expect Cmb_DepartmentNumber ""
expect E_DeptName "Hot drinks  "
keys "0"
expect E_DeptName "Hot drinks  "
keys "7"
expect E_DeptName "Breakfast   "

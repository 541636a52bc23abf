# The arrow keys and the list itself load departments too.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_DepartmentProgram
focus Cmb_DepartmentNumber
key Down
expect Cmb_DepartmentNumber "2"
expect E_DeptName "Cheese      "
key Down 3
expect E_DeptName "Dishes      "
key Up
expect Cmb_DepartmentNumber "4"
expect E_DeptName "Salads      "
choose Cmb_DepartmentNumber 20
expect E_DeptName "Crêpes      "
choose Cmb_DepartmentNumber #98
expect Cmb_DepartmentNumber "99"
expect E_DeptName "DEPT 99     "
key Down
expect Cmb_DepartmentNumber "99"

# In the grid the arrow keys walk from department to department.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_DepartmentProgram
focus Fg_Department
key Down
expect Cmb_DepartmentNumber 2
expect E_DeptName "Cheese      "
key Down 2
expect Cmb_DepartmentNumber 4
key Up
expect Cmb_DepartmentNumber 3
expect E_DeptName "Cold cuts   "
key Ctrl+End
expect Cmb_DepartmentNumber 99

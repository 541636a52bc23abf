# A selected row of the grid puts its number into the list and loads that department; the heading does nothing.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_DepartmentProgram
row Fg_Department 15
expect Cmb_DepartmentNumber 15
expect E_DeptName "Vouchers    "
expect Cmb_Halo "4. Up to 999.99"
row Fg_Department 99
expect Cmb_DepartmentNumber 99
expect E_DeptName "DEPT 99     "
row Fg_Department 0
expect Cmb_DepartmentNumber 99
row Fg_Department 1
expect Cmb_DepartmentNumber 1

# Each save moves on to the next department: from 96 to 97, from 97 to 98, and from 98 no further.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_DepartmentProgram
row Fg_Department 96
click C_Salva
expect Cmb_DepartmentNumber 97
expect E_DeptName "DEPT 97     "
click C_Salva
expect Cmb_DepartmentNumber 98
expect E_DeptName "DEPT 98     "
click C_Salva
expect Cmb_DepartmentNumber 98
expect E_DeptName "DEPT 98     "

# Numbers can be typed: each digit loads its department, letters do nothing, and 100 becomes 99.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_DepartmentProgram
focus Cmb_DepartmentNumber
keys "1"
expect E_DeptName "Hot drinks  "
keys "x-. "
expect Cmb_DepartmentNumber "1"
keys "0"
expect Cmb_DepartmentNumber "10"
expect E_DeptName "Wine        "
keys "0"
expect Cmb_DepartmentNumber "99"
expect E_DeptName "DEPT 99     "

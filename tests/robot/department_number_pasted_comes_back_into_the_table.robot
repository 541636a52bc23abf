# A number that was pasted without a key is looked at with the next key, whichever it is: 150 becomes 99, 12 is loaded.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_DepartmentProgram
paste Cmb_DepartmentNumber 150
key End
expect Cmb_DepartmentNumber "99"
expect E_DeptName "DEPT 99     "
paste Cmb_DepartmentNumber 10
expect E_DeptName "DEPT 99     "
key Home
expect Cmb_DepartmentNumber "10"
expect E_DeptName "Wine        "

# No group: the field is emptied when it is entered, stays empty when it is left, and an empty field saves as 0
# without counting as a change.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_DepartmentProgram
row Fg_Department 25
expect E_DeptGroupNumber "0"
focus E_DeptGroupNumber
expect E_DeptGroupNumber ""
focus Cmb_Tax
expect E_DeptGroupNumber ""
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 871 0000
row Fg_Department 1
focus E_DeptGroupNumber
expect E_DeptGroupNumber "1"
key Backspace
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 343 0000

# A negative group, pasted, is refused as one above 10 is: the critical box, and its last digit goes.
poke register/PRG_MODE.BIN 344 03
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_DepartmentProgram
expect E_DeptGroupNumber "3"
paste E_DeptGroupNumber "-5"
box critical "The value is too high. The last digit was removed." Ok
expect E_DeptGroupNumber "-"
nobox
keys "4"
box critical "The value is too high. The last digit was removed." Ok
key Ctrl+a
keys "4"
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 344 04

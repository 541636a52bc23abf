# A name of twelve letters takes no thirteenth, typed or pasted.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_DepartmentProgram
focus E_DeptName
keys "ABCDEFGHIJKLMNO"
expect E_DeptName "ABCDEFGHIJKL"
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 329 4142434445464748494A4B4C08
paste E_DeptName "A name that is far too long"
expect E_DeptName "A name that "
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 351 41206E616D6520746861742008

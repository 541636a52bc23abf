# A name that went through a system with letters of two bytes: the five known pairs become one letter each.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_DepartmentProgram
type E_DeptName "Ã¶Ã\x96Ã\x85Ã¤Ã\x84x"
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 329 9AE4D5EED878202020202020
row Fg_Department 1
expect E_DeptName "öÖÅäÄx      "

# A save sets bit 3 of the first status byte and leaves bit 2 of it and bits 2 to 7 of the second as they were.
poke register/PRG_MODE.BIN 341 04FC
poke register/PRG_MODE.BIN 363 0302
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_DepartmentProgram
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 341 0CFC00
expect Cmb_DepartmentNumber 2
expect Cmb_Status1 "1. Negative"
expect Cmb_Status2 "1. Single item"
choose Cmb_Status1 "0. Positive"
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 363 0A0201
choose Cmb_DepartmentNumber 1
choose Cmb_PriceType "1. Normal"
choose Cmb_Status2 "1. Single item"
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 341 0EFD01

# Without decimals the bare number is what is shown: a price beyond the maximum brings the box as soon as it is loaded.
poke register/PRG_MODE.BIN 67 00
poke register/PRG_MODE.BIN 369 99999999
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_DepartmentProgram
nobox
row Fg_Department 2
box critical "The value is too high. The last digit was removed." Ok
expect E_Price "9999999"
expect-cell Fg_Department 2 8 "99999999"

# The decimals of amounts are taken when the Setup menu opens: a programming with three shows three, the next one with two
# shows two.
poke register/PRG_MODE.BIN 67 03
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_DepartmentProgram
expect-cell Fg_Department 18 8 "0.150"
close
close
close
poke register/PRG_MODE.BIN 67 02
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_DepartmentProgram
expect-cell Fg_Department 18 8 "1.50"

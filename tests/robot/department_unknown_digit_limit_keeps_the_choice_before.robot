# A digit limit that no choice has: the list keeps the choice of the department before, and a save writes that one. The
# grid's cell stays empty until then.
poke register/PRG_MODE.BIN 363 58
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_DepartmentProgram
expect-cell Fg_Department 2 7 ""
row Fg_Department 15
expect Cmb_Halo "4. Up to 999.99"
row Fg_Department 2
expect Cmb_Halo "4. Up to 999.99"
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 363 48
expect-cell Fg_Department 2 7 "Up to 999.99"

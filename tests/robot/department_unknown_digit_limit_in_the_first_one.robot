# The first department has a digit limit that no choice has: the list shows nothing, and a save writes no limit.
poke register/PRG_MODE.BIN 341 F8
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_DepartmentProgram
expect Cmb_Halo ""
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 341 08

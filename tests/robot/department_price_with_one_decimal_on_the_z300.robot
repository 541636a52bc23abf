# One decimal, on the Z300.
register model Z300
poke register/PRG_MODE.BIN 67 01
start
expect E_ComPort 4
click C_Z300
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_DepartmentProgram
expect-cell Fg_Department 18 8 "2.5"
row Fg_Department 18
focus E_Price
expect E_Price "25"
focus Cmb_Tax
expect E_Price "2.5"
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 721 25000000

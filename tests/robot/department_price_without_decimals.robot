# The register counts in whole units: prices have no decimals, on the screen, in the grid and as typed.
poke register/PRG_MODE.BIN 67 00
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_DepartmentProgram
expect E_Price "0"
expect-cell Fg_Department 18 8 "150"
row Fg_Department 18
expect E_Price "150"
focus E_Price
expect E_Price "150"
key End
keys "7"
focus Cmb_Tax
expect E_Price "1507"
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 721 07150000
expect-cell Fg_Department 18 8 "1507"

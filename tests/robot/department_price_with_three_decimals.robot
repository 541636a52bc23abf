# The register counts in thousandths: three decimals everywhere.
poke register/PRG_MODE.BIN 67 03
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_DepartmentProgram
expect E_Price "0.000"
expect-cell Fg_Department 18 8 "0.150"
row Fg_Department 18
focus E_Price
expect E_Price "150"
key End
keys "5"
focus Cmb_Tax
expect E_Price "1.505"
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 721 05150000
expect-cell Fg_Department 18 8 "1.505"

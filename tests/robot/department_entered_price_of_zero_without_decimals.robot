# Entering a price of zero empties the field, leaving it brings the 0 back: without decimals that marks nothing.
poke register/PRG_MODE.BIN 67 00
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_DepartmentProgram
row Fg_Department 5
focus E_Price
expect E_Price ""
focus Cmb_Tax
expect E_Price "0"
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 431 00

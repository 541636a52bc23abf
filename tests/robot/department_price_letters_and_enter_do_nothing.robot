# Letters and points do nothing in a price, and Enter stays in the field.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_DepartmentProgram
focus E_Price
keys "1.5,0 x"
expect E_Price "150"
key Enter
expect-focus E_Price
expect E_Price "150"
expect-same Dati/PRG_MODE.BIN register/PRG_MODE.BIN

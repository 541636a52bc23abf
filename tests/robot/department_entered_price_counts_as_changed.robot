# Entering a price that is not zero turns it into bare digits, and that marks the department already.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_DepartmentProgram
row Fg_Department 18
focus E_Price
expect E_Price "150"
focus Cmb_Tax
expect E_Price "1.50"
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 717 0107

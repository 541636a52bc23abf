# The choice lists change by the pointer and the arrow keys alone: typed digits and letters do nothing.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_DepartmentProgram
focus Cmb_Tax
keys "40VvN"
expect Cmb_Tax "2. VAT rate 2"
focus Cmb_Status1
keys "1N"
expect Cmb_Status1 "0. Positive"
focus Cmb_PriceType
keys "2P"
expect Cmb_PriceType "0. Open"
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 341 08000001020200000000

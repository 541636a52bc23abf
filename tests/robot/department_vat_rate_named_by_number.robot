# A department names a VAT rate by its number: changing the rate in its own editor leaves the departments alone.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_SetVatRate
paste E_VatRate(2) 12000
click C_Salva
click C_Annulla
click C_DepartmentProgram
expect Cmb_Tax "2. VAT rate 2"
type E_DeptName "Drinks"
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 42 00200100
expect-bytes Dati/PRG_MODE.BIN 345 0202

# A click into a field enters it as Tab does: a rate turns into its digits; a name loses its blanks and is selected as a
# whole, so that typing replaces it.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_SetVatRate
click E_VatRate(2)
expect-focus E_VatRate(2)
expect E_VatRate(2) "10000"
click C_Salva
expect E_VatRate(2) "10 %"
click C_Annulla
click C_DepartmentProgram
click E_DeptName
expect E_DeptName "Hot drinks"
keys "X"
expect E_DeptName "X"
click E_DeptName
keys "Y"
expect-like E_DeptName "*Y*"
click E_DeptGroupNumber
expect-focus E_DeptGroupNumber

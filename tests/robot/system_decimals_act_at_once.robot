# Decimals that are saved count for the other screens at once, before anything is sent.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_DepartmentProgram
row Fg_Department 20
expect E_Price "6.90"
click C_Annulla
click C_SystemOption
choose Cmb_DecimalPosition "3. Thousandths (5.000)"
click C_Salva
click C_Annulla
click C_DepartmentProgram
row Fg_Department 20
expect E_Price "0.690"

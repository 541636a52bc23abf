# Behind a reset the editors still show the values from before, and a save writes them over the defaults. The next way in
# reads what is in the file.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_Reset
box plain * Yes
expect-bytes Dati/PRG_MODE.BIN 38 00000200
click C_ProgramMode
click C_DepartmentProgram
expect E_DeptName "Hot drinks  "
click C_Annulla
click C_SetVatRate
expect E_VatRate(1) "22.000 %"
close
close
close
click C_ModificaProgrammazione
box plain * No
click C_ProgramMode
click C_SetVatRate
expect E_VatRate(1) "20.000 %"
click C_Annulla
click C_DepartmentProgram
expect E_DeptName "STARTERS    "

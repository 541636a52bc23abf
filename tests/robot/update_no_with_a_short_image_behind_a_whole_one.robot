# A short image behind a whole one: what it lacks stays as it was in memory, and so it passes. The next save writes the
# image in full.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
screen FrmSetup
click C_Exit
truncate Dati/PRG_MODE.BIN 54
poke Dati/PRG_MODE.BIN 38 00500100
click C_ModificaProgrammazione
box plain * No
screen FrmSetup
click C_ProgramMode
click C_SetVatRate
expect E_VatRate(1) "15.000 %"
click C_Annulla
click C_DepartmentProgram
expect E_DeptName "Hot drinks  "
click C_Annulla
click C_SetVatRate
click C_Salva
expect-file Dati/PRG_MODE.BIN size 5656
poke Dati/PRG_MODE.BIN 38 00200200
expect-same Dati/PRG_MODE.BIN register/PRG_MODE.BIN

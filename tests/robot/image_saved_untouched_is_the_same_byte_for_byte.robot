# Saving without a change writes the same bytes, those that no screen knows among them.
poke register/PRG_MODE.BIN 21 01FE02FD
fill register/PRG_MODE.BIN 216 100 5A
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_SetVatRate
click C_Salva
expect-same Dati/PRG_MODE.BIN register/PRG_MODE.BIN
expect-file Dati/PRG_MODE.BIN size 5656

# Saving with an empty code stores 0.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_PluProgram
row Fg_Plu 2
paste E_FreeCode ""
click C_Salva
expect-cell Fg_Plu 2 1 "3"
expect-file Dati/PRG_PLU.BIN size 6126

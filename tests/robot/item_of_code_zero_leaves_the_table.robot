# Saving a code of 0 moves the row to the end, and the table is one item shorter.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_PluProgram
row Fg_Plu 2
paste E_FreeCode 0
click C_Salva
expect-cell Fg_Plu 2 1 "3"
expect-cell Fg_Plu 122 1 "0"
expect-file Dati/PRG_PLU.BIN size 6126
expect-bytes Dati/PRG_PLU.BIN 0 7900

# The 3000th code leaves the count at 2999: the last record is not written.
copy script/data/items_2999.csv full.csv
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_PluProgram
click C_Import
file full.csv
expect-cell Fg_Plu 2999 1 "2999"
click C_Salva
expect-bytes Dati/PRG_PLU.BIN 0 B70B
expect-file Dati/PRG_PLU.BIN size 132758
focus Cmb_PluNumber
keys "3000"
paste E_FreeCode 5000
click C_Salva
expect Cmb_PluNumber 3000
expect-cell Fg_Plu 3000 1 "5000"
expect-bytes Dati/PRG_PLU.BIN 0 B70B
expect-file Dati/PRG_PLU.BIN size 132758

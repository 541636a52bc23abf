# The stock choice saved with one item shows with all the others.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_PluProgram
row Fg_Plu 17
expect Cmb_StockUsed "1. Yes"
choose Cmb_StockUsed "0. No"
click C_Salva
expect Cmb_StockUsed "0. No"
row Fg_Plu 1
expect Cmb_StockUsed "0. No"
expect-bytes Dati/PRG_PLU.BIN 826 C2
expect-bytes Dati/PRG_PLU.BIN 1530 C207
expect-bytes Dati/PRG_PLU.BIN 1543 00

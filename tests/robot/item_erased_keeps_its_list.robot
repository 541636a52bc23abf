# Erase empties the screen; the table changes with the save. The item's entry in its pop-up list stays.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_PluProgram
row Fg_Plu 2
click C_Erase
expect E_FreeCode "0"
expect E_Name ""
expect E_Price1 "0"
expect E_Price2 "0"
expect E_StockCount "0"
expect Cmb_LinkDept "0"
expect Cmb_Status "1. Normal"
expect Cmb_Tax "0. Not taxable"
expect Cmb_TakeOutTax "0. Not taxable"
expect Cmb_PluListLink "1"
expect Cmb_StockUsed "1. Yes"
expect-same Dati/PRG_PLU.BIN register/PRG_PLU.BIN
expect-cell Fg_Plu 2 1 "2"
click C_Salva
expect-cell Fg_Plu 2 1 "3"
expect-file Dati/PRG_PLU.BIN size 6126
expect-bytes Dati/PRG_PLU.BIN 10 0200000000000000

# Every field of an item is changed and saved: its 44 bytes, the row of the grid, and nothing else.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_PluProgram
row Fg_Plu 11
paste E_FreeCode 17
type E_Name "Wrap"
focus E_Price1
expect E_Price1 "620"
paste E_Price1 "650"
paste E_Price2 "0"
paste E_StockCount "-2.5"
choose Cmb_Status "1. Normal"
choose Cmb_LinkDept "12"
choose Cmb_Tax "3. VAT rate 3"
choose Cmb_TakeOutTax "0. Not taxable"
choose Cmb_PluListLink "5"
click C_Salva
expect Cmb_PluNumber 11
expect E_FreeCode "12"
expect-bytes Dati/PRG_PLU.BIN 1462 1700000000000000577261702020202020202020202020206112030050060000000000000501005002000010
expect-cell Fg_Plu 16 1 "17"
expect-cell Fg_Plu 16 2 "Wrap            "
expect-cell Fg_Plu 16 3 "normal"
expect-cell Fg_Plu 16 4 "12"
expect-cell Fg_Plu 16 5 "vat rate 3"
expect-cell Fg_Plu 16 6 "not taxable"
expect-cell Fg_Plu 16 7 "6.50"
expect-cell Fg_Plu 16 8 "0.00"
expect-cell Fg_Plu 16 9 "-2.5"
expect-bytes Dati/PRG_PLU.BIN 722 1700000000000000
expect-file Dati/PRG_PLU.BIN size 6170

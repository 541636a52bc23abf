# The grid with the built-in captions: the stock column carries the heading of the take-out tax.
write Setup/FrmDescEng.txt ""
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_PluProgram
expect-title "Program PLUs"
expect-cell Fg_Plu 0 0 ""
expect-cell Fg_Plu 0 1 "PLU #"
expect-cell Fg_Plu 0 2 "PLU Name"
expect-cell Fg_Plu 0 3 "Status"
expect-cell Fg_Plu 0 4 "Dept"
expect-cell Fg_Plu 0 5 "Tax"
expect-cell Fg_Plu 0 6 "T.O.Tax"
expect-cell Fg_Plu 0 7 "Price 1"
expect-cell Fg_Plu 0 8 "Price 2"
expect-cell Fg_Plu 0 9 "T.O.Tax"
expect-cell Fg_Plu 1 3 "preset"
expect-cell Fg_Plu 1 5 "tax2 taxable"
expect L_FreeCode "PLU :"
expect L_PriceMax "(Max Value 9999999999999)"
expect-items Cmb_Status "0. OPEN" "1. NORMAL" "2. PRESET"
expect-items Cmb_StockUsed "0. NOT USED" "1. USED"
expect-items Cmb_PluListLink "0" "1" "2" "3" "4" "5"
expect-count Cmb_LinkDept 99

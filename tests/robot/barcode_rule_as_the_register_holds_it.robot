# The rules of a Z320 in their grid and fields, with the English texts.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_InstoreBarcodeSetting
screen FrmInstoreBarcodeSetting
expect-title "In-store barcodes"
expect L_InstoreBarcodeSettingNumber "Barcode rule number"
expect L_Instore "Flag code"
expect L_CodeLenght "Code length"
expect L_NewPaper "Newspaper"
expect-count FG_InstoreBarcode 11
expect-cell FG_InstoreBarcode 0 0 "Rule"
expect-cell FG_InstoreBarcode 0 7 "Newspaper"
expect-cell FG_InstoreBarcode 4 1 "977"
expect-cell FG_InstoreBarcode 4 2 "3"
expect-cell FG_InstoreBarcode 4 5 "Long"
row FG_InstoreBarcode 4
expect Cmb_InstoreBarcodeSettingNumber "4"
expect E_FlagCode "977"
expect Cmb_DigitsOfFlag "3"
expect-items Cmb_CodeLenght "0. Long" "1. Short"
expect-items Cmb_NewsPaper "0. No" "1. Yes"

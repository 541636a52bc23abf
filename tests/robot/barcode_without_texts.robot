# Without the catalogue the barcode screen has its built-in captions, the one of the code length being Version.
write Setup/FrmDescEng.txt ""
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_InstoreBarcodeSetting
expect-title "Program Instore Barcodes"
expect L_InstoreBarcodeSettingNumber "Instore Barcode Setting Number"
expect L_CodeLenght "Version"
expect-items Cmb_CodeLenght "0. LONG" "1. SHORT"
expect-items Cmb_PriceCheckDigit "0. NO" "1. YES"
expect-cell FG_InstoreBarcode 0 0 "Inst.Bar N°"
expect-cell FG_InstoreBarcode 0 5 "Code length"

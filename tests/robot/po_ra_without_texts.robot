# Without the catalogue the PO, RA and plus-minus keys have their built-in captions; a discount is number 0 here.
write Setup/FrmDescEng.txt ""
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_PO_RA_M_P_Key_Program
expect-title "Program PO, RA and -/+ Keys"
expect L_PM1KeyHDLOSetting "+/- 1 Key HDLO Setting"
expect-items Cmb_POKeyHDLOSetting "0. NO LIMIT" "1. (0 - 0.99)" "2. (0 - 9.99)" "3. (0 - 99.99)" "4. (0 - 999.99)"
expect-items Cmb_PM2Sign "0. DISCOUNT" "1. ADD ON"
expect-items Cmb_POHeaderPrint "0. PRINT" "1. NOT PRINT"

# Without a catalogue the operating mode has its built-in words.
write Setup/FrmDescEng.txt ";"
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_SettingMode
click C_Working_Mode
expect-title "Operating Mode"
expect L_Titolo "OPERATING MODE"
expect L_FC_ConvertCalculation " FC Convert Calculation"
expect L_PM_Per_Result "±%, ± Result"
expect-items Cmb_VatCalculation "0. VAT" "1. ADD ON TAX"
expect-items Cmb_FC_ConvertCalculation "0. DIVIDE" "1. MULTIPLE"
expect-items Cmb_PluPageSelection "0. EACH ENTRY" "1. END OF TRANSACTION" "2. STAY DOWN"

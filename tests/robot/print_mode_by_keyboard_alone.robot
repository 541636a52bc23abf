# The tabs of the print mode are reached and turned by the keyboard.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_SettingMode
click C_Print_Out_Mode
expect-focus Cmb_TaxRatePrint
key Shift+Tab
key Right
expect-tab Tab_PrintReceipt 1 "Header/footer"
key Shift+Tab
key Right
expect-tab Tab_Print 1 "On invoice"
key Tab
expect-focus Cmb_InvoicePrint
key Down
expect Cmb_InvoicePrint "1. Compressed"

# The third tab has the words of the fifth key; without a catalogue the tabs have their built-in words.
write Setup/FrmDescEng.txt "FRM_PRINT_MODE_TAB_PRINT_TAB3=three\nFRM_PRINT_MODE_TAB_PRINT_TAB4=four\nFRM_PRINT_MODE_TAB_PRINT_TAB5=five\n"
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_SettingMode
click C_Print_Out_Mode
expect-tab Tab_Print 0 "ON RECEIPT"
expect-tab Tab_PrintReceipt 0 "Tax Details"
tab Tab_PrintReceipt 1
expect-tab Tab_PrintReceipt 1 "Header/Footer"
tab Tab_PrintReceipt 2
expect-tab Tab_PrintReceipt 2 "Item Selection"
tab Tab_PrintReceipt 3
expect-tab Tab_PrintReceipt 3 "Format"
tab Tab_Print 1
expect-tab Tab_Print 1 "ON INVOICE"
tab Tab_Print 2
expect-tab Tab_Print 2 "five"

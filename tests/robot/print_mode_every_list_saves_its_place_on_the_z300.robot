# The print mode is the same on the Z300.
register model Z300
poke register/PRG_MODE.BIN 0 0001010001010001000040E8010601070FA0C02100
start
expect E_ComPort 4
click C_Z300
click C_ModificaProgrammazione
box plain * Yes
click C_SettingMode
click C_Print_Out_Mode
expect-count Tab_Print 3
expect-visible Cmb_NewBalanceReceiptPrint yes
tab Tab_PrintReceipt 3
choose Cmb_LineDistanceSel "3. 2.0 mm"
choose Cmb_TaxDetailsPrintPosition "1. Before total"
tab Tab_Print 1
choose Cmb_NewBalanceReceiptPrint "3. Double height"
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 5 030003
expect-bytes Dati/PRG_MODE.BIN 10 C0

# An empty word keeps the built-in entry; a word with a point in it does not disturb the number.
write Setup/FrmDescEng.txt "FRM_ALL_YES=\nFRM_ALL_NO=3.5 n.\n"
poke register/PRG_MODE.BIN 0 0001010001010001000040E8010601070FA0C02100
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_SettingMode
click C_Print_Out_Mode
expect-items Cmb_TaxRatePrint "0. YES" "1. 3.5 n."
choose Cmb_TaxRatePrint #1
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 18 C4

# Opening the print mode and saving changes one bit alone: the header on X and Z reports turns once for each opening
# that is saved, however often it is saved.
poke register/PRG_MODE.BIN 0 0001010001010001000040E8010601070FA0C02100
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_SettingMode
click C_Print_Out_Mode
copy Dati/PRG_MODE.BIN before.bin
copy before.bin turned.bin
poke turned.bin 19 31
expect Cmb_X_ZReportHeaderPrint "1. Yes"
click C_Salva
expect-same Dati/PRG_MODE.BIN turned.bin
click C_Salva
expect-same Dati/PRG_MODE.BIN turned.bin
click C_Annulla
click C_Print_Out_Mode
expect Cmb_X_ZReportHeaderPrint "0. No"
click C_Annulla
expect-same Dati/PRG_MODE.BIN turned.bin
click C_Print_Out_Mode
click C_Salva
expect-same Dati/PRG_MODE.BIN before.bin

# A word for the second row of the store list gives it its number.
write Setup/FrmDescEng.txt "FRM_EJ_SETUP_CMB_EJ_STORE1_MSG=all of it\n"
poke register/PRG_MODE.BIN 0 0001010001010001000040E8010601070FA0C02100
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_SettingMode
click C_EJ_Setup
expect-items Cmb_EJStore "0. SALES ONLY" "1. all of it"
choose Cmb_EJStore #1
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 13 07

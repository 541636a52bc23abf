# With words for the first three languages and none for German, German reads as its number alone, and is saved as
# such.
write Setup/FrmDescEng.txt "FRM_INITIAL_MENU_CMB_LINGUA0_MSG=Uno\nFRM_INITIAL_MENU_CMB_LINGUA1_MSG=Due\nFRM_INITIAL_MENU_CMB_LINGUA2_MSG=Tre\n"
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_SettingMode
click C_Initial_Setup
expect-items Cmb_Lingua "0. Uno" "1. Due" "2. Tre" "3. " "4. DUTCH" "5. PORTOGUESE" "6. DANISH" "7. NORWEGIAN"
choose Cmb_Lingua "3. "
click C_Salva
box information * Ok
expect-bytes Dati/PRG_MODE.BIN 0 03

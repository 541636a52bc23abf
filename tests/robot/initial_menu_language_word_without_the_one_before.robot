# With a word for German and none for French, German keeps its built-in words and Dutch reads as its number alone.
write Setup/FrmDescEng.txt "FRM_INITIAL_MENU_CMB_LINGUA3_MSG=Quattro\n"
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_SettingMode
click C_Initial_Setup
expect-items Cmb_Lingua "0. ENGLISH" "1. SPANISH" "2. FRENCH" "3. GERMAN" "4. " "5. PORTOGUESE" "6. DANISH" "7. NORWEGIAN"

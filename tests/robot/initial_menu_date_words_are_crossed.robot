# Each date format has the word of the other one's key, and asks whether its own has one.
write Setup/FrmDescEng.txt "FRM_INITIAL_MENU_CMB_DATA_FORMAT0_MSG=zero\n"
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_SettingMode
click C_Initial_Setup
expect-items Cmb_DateFormat "0. " "1. MM-DD-YY"
close
close
close
close
close
expect-ended
write Setup/FrmDescEng.txt "FRM_INITIAL_MENU_CMB_DATA_FORMAT0_MSG=zero\nFRM_INITIAL_MENU_CMB_DATA_FORMAT1_MSG=one\n"
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * No
click C_SettingMode
click C_Initial_Setup
expect-items Cmb_DateFormat "0. one" "1. zero"

# The VAT list takes its two words crosswise; the built-in words stand straight.
write Setup/FrmDescEng.txt "FRM_WORKING_MODE_CMB_VAT_CALCULATION0_MSG=zero\nFRM_WORKING_MODE_CMB_VAT_CALCULATION1_MSG=one\n"
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_SettingMode
click C_Working_Mode
expect-items Cmb_VatCalculation "0. one" "1. zero"

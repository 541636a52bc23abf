# The login display takes its two words crosswise, its built-in entries stand straight.
write Setup/FrmDescEng.txt "FRM_ALL_ACTIVE=on\n"
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_SettingMode
click C_Clerk_Setup
expect-items Cmb_ClerkSystem "0. INACTIVE" "1. on"
expect-items Cmb_LoginClerkDisplay "0. on" "1. ACTIVE"

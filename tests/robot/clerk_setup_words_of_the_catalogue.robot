# With both words the clerk system reads inactive first and the login display active first.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_SettingMode
click C_Clerk_Setup
expect-items Cmb_ClerkSystem "0. Inactive" "1. Active"
expect-items Cmb_MustClerkPassword "0. No" "1. Yes"
expect-items Cmb_EachTransactionOfClerk "0. No" "1. Yes"
expect-items Cmb_LoginClerkDisplay "0. Active" "1. Inactive"

# The font of the new balance has the same words one number higher; line distances are never translated.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_SettingMode
click C_Print_Out_Mode
expect-items Cmb_ReceiptwithoutTableTrackingPrint "0. Normal" "1. Compressed" "2. Double height"
expect-items Cmb_NewBalanceReceiptPrint "0. None" "1. Normal" "2. Compressed" "3. Double height"
expect-items Cmb_LineDistanceSel "0. 0.5 mm" "1. 1.0 mm" "2. 1.5 mm" "3. 2.0 mm"
expect-items Cmb_InvoicePrint "0. Normal" "1. Compressed"
expect-items Cmb_AutomaticAbr "0. Automatic" "1. Manual"
expect-items Cmb_TaxDetailsPrintPosition "0. After tender" "1. Before total"

# The hospitality setup changes its seven bits and leaves those of other screens.
poke register/PRG_MODE.BIN 11 FFFF
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_SettingMode
click C_Hospitality_Setup
expect-items Cmb_GuestCompulsory "0. Yes" "1. No"
expect Cmb_TableCompulsory "1. No"
choose Cmb_TableCompulsory #0
expect Cmb_GuestCompulsory "1. No"
choose Cmb_GuestCompulsory #0
expect Cmb_ExclusiveClerk "1. No"
choose Cmb_ExclusiveClerk #0
expect Cmb_Review_ProformaReceipt "1. No"
choose Cmb_Review_ProformaReceipt #0
expect Cmb_ConsUpdateOnNewBalance "1. No"
choose Cmb_ConsUpdateOnNewBalance #0
expect Cmb_ConsUpdateOnInvoice "1. No"
choose Cmb_ConsUpdateOnInvoice #0
expect Cmb_ConsUpdateOnReview_Proforma "1. No"
choose Cmb_ConsUpdateOnReview_Proforma #0
click C_Salva
click C_Annulla
click C_Clerk_Setup
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 11 3FE0

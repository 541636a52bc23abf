# The electronic journal has seven lists on the Z320; what is chosen for the invoice is not kept.
poke register/PRG_MODE.BIN 0 0001010001010001000040E8010601070FA0C02100
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_SettingMode
click C_EJ_Setup
expect-title "EJ setup"
expect-items Cmb_EJSystem "0. Standard" "1. Dynamic" "2. SD"
expect-items Cmb_EJStore "0. Sales only" "1. Everything"
expect-items Cmb_NewBalanceReceipttoEJ "0. Stored" "1. Not stored"
choose Cmb_EJSystem "2. SD"
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 8 02
expect-bytes Dati/PRG_MODE.BIN 13 06
choose Cmb_EJStore #1
choose Cmb_BeepStartOfTransaction #0
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 13 05
choose Cmb_InvoiceReceipttoEJ #1
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 13 05
choose Cmb_NewBalanceReceipttoEJ #1
choose Cmb_InvoiceReceipttoEJ #0
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 13 1D
choose Cmb_Review_ProformaReceiptToEJ #1
choose Cmb_BeepEndOfTransaction #0
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 13 39

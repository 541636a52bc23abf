# An invoice bit alone is cleared by every save.
poke register/PRG_MODE.BIN 13 30
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_SettingMode
click C_EJ_Setup
expect Cmb_InvoiceReceipttoEJ "1. Not stored"
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 13 20

# On the Z300 three lists are out of sight and still decide their bits; the invoice follows the new balance.
register model Z300
poke register/PRG_MODE.BIN 13 E8
start
expect E_ComPort 4
click C_Z300
click C_ModificaProgrammazione
box plain * Yes
click C_SettingMode
click C_EJ_Setup
expect-visible Cmb_InvoiceReceipttoEJ no
expect-visible L_InvoiceReceipttoEJ no
expect-visible Cmb_NewBalanceReceipttoEJ no
expect-visible L_NewBalanceReceipttoEJ no
expect-visible Cmb_Review_ProformaReceiptToEJ no
expect-visible L_Review_ProformaReceiptToEJ no
expect-visible Cmb_EJStore yes
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 13 F8

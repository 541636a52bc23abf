# The box Receipt on/off of each pop-up list is disabled and keeps its bit; only the defaults clear it.
poke register/PRG_MODE.BIN 184 01
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_AdvancedSetting
screen FrmAdvancedSetting
tab Tab_AdvancedOption 2
expect-enabled Chk_ReceiptOn_Off(0) no
expect-enabled Chk_ReceiptOn_Off(1) no
expect-enabled Chk_ReceiptOn_Off(2) no
expect-enabled Chk_ReceiptOn_Off(3) no
expect-enabled Chk_ReceiptOn_Off(4) no
expect-enabled Chk_Subtotal(0) yes
expect-checked Chk_ReceiptOn_Off(1) on
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 184 01
tab SSTab1 1
click C_RestoreDefaultPop(1)
expect-checked Chk_ReceiptOn_Off(1) off
expect-checked Chk_Void(1) on
expect-checked Chk_FullVoid(1) on
expect-checked Chk_Refund(1) on
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 184 00001C

# The box PLU inquiry is stored in a bit of its own, but shows what PO has when it is loaded.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_AdvancedSetting
screen FrmAdvancedSetting
tab Tab_AdvancedOption 2
check Chk_PluInquiry(0) on
expect-checked Chk_PO(0) off
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 178 0001
expect-checked Chk_PluInquiry(0) on
click C_Annulla
screen FrmSetup
click C_AdvancedSetting
expect-checked Chk_PluInquiry(0) off
expect-checked Chk_PluInquiry(3) on
expect-checked Chk_PO(3) on
tab Tab_AdvancedOption 2
check Chk_PO(0) on
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 178 0100
click C_Annulla
screen FrmSetup
click C_AdvancedSetting
expect-checked Chk_PO(0) on
expect-checked Chk_PluInquiry(0) on

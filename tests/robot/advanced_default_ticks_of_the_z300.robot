# The default functions of the pop-up lists of a Z300 differ in the second and the last one.
register model Z300
start
expect E_ComPort 4
click C_Z300
click C_ModificaProgrammazione
box plain * Yes
click C_AdvancedSetting
screen FrmAdvancedSetting
tab Tab_AdvancedOption 2
tab SSTab1 1
check Chk_Refund(1) on
click C_RestoreDefaultPop(1)
tab SSTab1 4
check ChK_TakeOut(4) off
click C_RestoreDefaultPop(4)
expect-checked ChK_TakeOut(4) on
expect-checked Chk_FC(4) on
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 184 00000C0000000000
expect-bytes Dati/PRG_MODE.BIN 208 0004000800000000

# The default functions of each pop-up list of a Z320; Credit 1 is not among them.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_AdvancedSetting
screen FrmAdvancedSetting
tab Tab_AdvancedOption 2
tab SSTab1 0
check Chk_Hold(0) on
click C_RestoreDefaultPop(0)
expect-checked Chk_Hold(0) off
expect-checked ChK_PM2(0) on
tab SSTab1 1
click C_RestoreDefaultPop(1)
tab SSTab1 2
check Chk_Credit1(2) on
click C_RestoreDefaultPop(2)
expect-checked Chk_Credit1(2) off
expect-checked Chk_Credit5(2) on
tab SSTab1 3
click C_RestoreDefaultPop(3)
tab SSTab1 4
check Chk_FC(4) on
click C_RestoreDefaultPop(4)
expect-checked Chk_FC(4) off
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 176 0078000000000000
expect-bytes Dati/PRG_MODE.BIN 184 00001C0000000000
expect-bytes Dati/PRG_MODE.BIN 192 EC01000000000000
expect-bytes Dati/PRG_MODE.BIN 200 0080010000000000
expect-bytes Dati/PRG_MODE.BIN 208 0000000000000000

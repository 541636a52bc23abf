# Each report box stands for its bit of the chain in front; bits of no box are kept.
poke register/PRG_MODE.BIN 320 00FC
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_AdvancedSetting
screen FrmAdvancedSetting
tab Tab_Chain 2
expect-checked Chk_AllPlu off
check Chk_AllPlu on
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 320 04FC
check Chk_AllPlu off
check Chk_DepartmentAndFinanciaGT on
check ChK_DepartmentAndFinancial on
check Chk_DepartmentGroup on
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 320 83FC
check Chk_Hourly on
check Chk_SalesClerk on
check Chk_Training on
check Chk_TrainingClerk on
check Chk_FullEJ on
check Chk_AllPluStock on
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 316 2B00
expect-bytes Dati/PRG_MODE.BIN 320 FBFF
tab Tab_Chain 3
tab Tab_Chain 2
expect-checked Chk_Training on
expect-checked Chk_AllPlu off

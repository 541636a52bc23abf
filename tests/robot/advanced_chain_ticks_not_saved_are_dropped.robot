# Ticks of a chain that were not saved are gone when another chain was looked at.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_AdvancedSetting
screen FrmAdvancedSetting
expect-tab Tab_Chain 0
expect-checked Chk_Hourly on
expect-checked Chk_AllPlu off
check Chk_Hourly off
check Chk_AllPlu on
tab Tab_Chain 1
expect-checked Chk_AllPlu on
expect-checked Chk_Hourly off
expect-checked Chk_AllPluStock on
tab Tab_Chain 0
expect-checked Chk_Hourly on
expect-checked Chk_AllPlu off
check Chk_AllPlu on
click C_Salva
tab Tab_Chain 1
tab Tab_Chain 0
expect-checked Chk_AllPlu on

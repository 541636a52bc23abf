# Another chain is loaded together with all five pop-up lists, so their unsaved ticks are gone too.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_AdvancedSetting
screen FrmAdvancedSetting
tab Tab_AdvancedOption 2
tab SSTab1 2
check Chk_Hold(2) on
tab SSTab1 0
expect-checked Chk_Hold(2) on
tab Tab_AdvancedOption 0
tab Tab_Chain 4
expect-checked Chk_Hold(2) off

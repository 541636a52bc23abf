# Every tab of the advanced settings can be seen and pictured on a Z320.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_AdvancedSetting
tab Tab_AdvancedOption 0
picture advanced-1.png
expect-file advanced-1.png exists
tab Tab_AdvancedOption 1
picture advanced-2.png
expect-file advanced-2.png exists
tab Tab_AdvancedOption 2
picture advanced-3.png
expect-file advanced-3.png exists

# Of the two keyboards only that of the chosen model can be reached.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_AdvancedSetting
screen FrmAdvancedSetting
tab Tab_AdvancedOption 1
expect-count Tab_Keyboard 2
expect-tab Tab_Keyboard 1 ECRZ320
expect-visible L_key2(69) yes
tab Tab_Keyboard 0
expect-tab Tab_Keyboard 1
close
screen FrmSetup
click C_Exit
click C_Back
register model Z300
click C_Z300
click C_ModificaProgrammazione
box plain * Yes
click C_AdvancedSetting
tab Tab_AdvancedOption 1
expect-tab Tab_Keyboard 0 "ECR Z300"
expect L_key(10) "DEPT 1"
tab Tab_Keyboard 1
expect-tab Tab_Keyboard 0

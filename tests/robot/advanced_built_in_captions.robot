# Without texts the built-in captions stay; four of the pop-up boxes bear the name of the box before.
write Setup/FrmDescEng.txt ""
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_AdvancedSetting
screen FrmAdvancedSetting
expect-title "Advanced Setting"
expect-tab Tab_AdvancedOption 0 "CHAIN REPORT SELECT"
expect Chk_DepartmentAndFinanciaGT "Department And Financia GT"
tab Tab_AdvancedOption 1
expect-tab Tab_AdvancedOption 1 "FREE KEY LAYOUT"
expect L_KeyList "Key list"
expect C_RestoreDefault "Restore Default"
tab Tab_AdvancedOption 2
expect-tab Tab_AdvancedOption 2 "POP UP KEY SELECT"
expect Chk_FC(0) "FC"
expect Chk_P1(0) "Chk_FC"
expect Chk_P2(1) "Chk_P1"
expect ChK_PM1(2) "Chk_P2"
expect ChK_PM2(3) "ChK_PM1"
expect ChK_Table_NewBal(4) "TABLE#/NEW BAL."

# The captions of the advanced settings in English; one box has no text of its own in any language file.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_AdvancedSetting
screen FrmAdvancedSetting
expect-title "Advanced settings"
expect-tab Tab_AdvancedOption 0 "Chain reports"
expect-count Tab_AdvancedOption 3
expect Chk_DepartmentAndFinanciaGT "Department and financial GT"
expect Chk_SalesClerk "Sales Clerk"
tab Tab_AdvancedOption 1
expect-tab Tab_AdvancedOption 1 "Key layout"
expect L_KeyList "Functions"
expect C_RestoreDefault "Restore defaults"
tab Tab_AdvancedOption 2
expect-tab Tab_AdvancedOption 2 "Pop-up keys"
expect Chk_P1(0) "%1"
expect ChK_PM1(4) "+/- 1"
expect Chk_PluAlt(2) "PLU price"
expect ChK_Payment(1) "= Payment"

# A short caption is changed beside the grid: Apply takes the text over, Cancel does not, and only Save stores it.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_MessageSetup

tab Tab_Print 1
expect-count FG_Caption 79
expect-cell FG_Caption 0 0 "Definition"
expect-cell FG_Caption 0 1 "Custom Definition"
expect-cell FG_Caption 1 0 "Total: what is to be paid"
expect-cell FG_Caption 1 1 "TOTAL     "
expect-cell FG_Caption 4 1 "CHEQUE    "
expect-cell FG_Caption 78 0 "End: of a report"
expect-cell FG_Caption 78 1 "END       "
expect-enabled E_Valore no
expect-enabled C_Apply no
expect-enabled C_Cancel no
expect-enabled ChK_Double2 no
expect-enabled L_Desc no
expect-enabled L_Preview2 no
expect-enabled L_Other(0) no
expect E_Valore ""
row FG_Caption 1
expect-enabled E_Valore yes
expect-enabled C_Apply yes
expect-enabled C_Cancel yes
expect-enabled ChK_Double2 yes
expect-enabled L_Desc yes
expect-enabled L_Preview2 yes
expect-enabled L_Other(22) yes
expect L_Desc "Total: what is to be paid"
expect E_Valore "TOTAL     "
paste E_Valore "SUM"
expect E_ValorePrev "SUM       "
click C_Cancel
expect-enabled E_Valore no
expect-enabled L_Other(0) no
expect-cell FG_Caption 1 1 "TOTAL     "
row FG_Caption 1
expect E_Valore "TOTAL     "
paste E_Valore "SUM"
click C_Apply
expect-enabled E_Valore no
expect-cell FG_Caption 1 1 "SUM       "
expect-bytes Dati/PRG_MODE.BIN 4235 544F54414C2020202020
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 4235 53554D20202020202020
expect-bytes Dati/PRG_MODE.BIN 4265 43484551554520202020
expect-bytes Dati/PRG_MODE.BIN 5005 454E4420202020202020

# Each tab by keyboard: arrows choose tabs and functions, lead from key to key, and Space presses.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_AdvancedSetting
screen FrmAdvancedSetting
expect-focus Tab_AdvancedOption
key Tab
expect-focus Tab_Chain
key Right
expect-tab Tab_Chain 1
key Tab
expect-focus Chk_AllPlu
key Space
expect-checked Chk_AllPlu off
key Shift+Tab 2
key Right
expect-tab Tab_AdvancedOption 1
key Tab
expect-focus Cmb_KeyList
key End
expect Cmb_KeyList "255. NO OPERATION"
key Up
expect L_Preview "PLU 50"
key Tab
expect-focus C_RestoreDefault
key Tab 2
expect-focus L_key2(1)
key Down
key Right 2
expect-focus L_key2(13)
key Home
expect-focus L_key2(2)
key End
expect-focus L_key2(67)
keys " "
expect L_key2(67) "PLU 50"
key Up
expect-focus L_key2(62)
key Enter
expect L_key2(62) "PLU 50"
expect L_key2(67) "NO OPERATION"
key Tab
expect-focus C_Salva
key Enter
expect-bytes Dati/PRG_MODE.BIN 5593 97
expect-bytes Dati/PRG_MODE.BIN 5610 FF

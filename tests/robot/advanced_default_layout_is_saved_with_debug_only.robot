# With DEBUG the saved layout, not what stands on the keys, can become the default; without it there is no such button.
start DEBUG
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_AdvancedSetting
screen FrmAdvancedSetting
tab Tab_AdvancedOption 1
expect-visible C_nuovi_default yes
expect C_nuovi_default "Salva Default"
choose Cmb_KeyList "82. DEPT 1"
click L_key2(69)
click C_Salva
click L_key2(1)
click C_nuovi_default
expect-bytes Dati/KEY_DEFAULTZ320.BIN 0 FFFF
expect-bytes Dati/KEY_DEFAULTZ320.BIN 14 16
expect-bytes Dati/KEY_DEFAULTZ320.BIN 73 52
expect-file Dati/KEY_DEFAULTZ320.BIN size 89
restart
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * No
click C_AdvancedSetting
tab Tab_AdvancedOption 1
expect-visible C_nuovi_default no
click C_RestoreDefault
expect L_key2(69) "DEPT 1"
expect L_key2(1) "CLERK, ESC"

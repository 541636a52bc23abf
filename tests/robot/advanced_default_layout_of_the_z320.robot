# Restore defaults puts the default layout of the Z320 on the keys, in black; a save makes it lasting.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_AdvancedSetting
screen FrmAdvancedSetting
tab Tab_AdvancedOption 1
choose Cmb_KeyList "82. DEPT 1"
click L_key2(69)
click C_RestoreDefault
expect L_key2(69) "RA"
expect-colour L_key2(69) black
expect L_key2(11) "DEPT 1"
expect-colour L_key2(11) black
expect-same register/PRG_MODE.BIN Dati/PRG_MODE.BIN
click L_key2(69)
click C_Salva
click C_RestoreDefault
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 5640 26

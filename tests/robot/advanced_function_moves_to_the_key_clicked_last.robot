# A function sits on one key only: clicked onto a second key, it leaves NO OPERATION behind on the first, both in red.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_AdvancedSetting
screen FrmAdvancedSetting
tab Tab_AdvancedOption 1
expect L_key2(11) "DEPT 1"
expect-colour L_key2(11) black
choose Cmb_KeyList "82. DEPT 1"
click L_key2(69)
expect L_key2(69) "DEPT 1"
expect-colour L_key2(69) red
expect L_key2(11) "NO OPERATION"
expect-colour L_key2(11) red
expect-colour L_key2(12) black
click L_key2(1)
expect L_key2(1) "DEPT 1"
expect L_key2(69) "NO OPERATION"
expect L_key2(11) "NO OPERATION"
expect-same register/PRG_MODE.BIN Dati/PRG_MODE.BIN
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 5567 FFFF58
expect-bytes Dati/PRG_MODE.BIN 5581 52
expect-bytes Dati/PRG_MODE.BIN 5640 FF
click C_Annulla
screen FrmSetup
click C_AdvancedSetting
tab Tab_AdvancedOption 1
expect L_key2(1) "DEPT 1"
expect-colour L_key2(1) black
expect L_key2(69) "NO OPERATION"

# A function that also stood at a position without a key is taken from there as well.
register model Z300
poke register/PRG_MODE.BIN 5567 61
poke register/PRG_MODE.BIN 5655 61
start
expect E_ComPort 4
click C_Z300
click C_ModificaProgrammazione
box plain * Yes
click C_AdvancedSetting
screen FrmAdvancedSetting
tab Tab_AdvancedOption 1
choose Cmb_KeyList "97. DEPT 16"
click L_key(14)
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 5567 FF
expect-bytes Dati/PRG_MODE.BIN 5615 61
expect-bytes Dati/PRG_MODE.BIN 5655 FF

# On a Z300 the codes behind position 52, and all others that no key shows, are kept by a save.
register model Z300
poke register/PRG_MODE.BIN 5567 63
poke register/PRG_MODE.BIN 5620 01325A646EC8
start
expect E_ComPort 4
click C_Z300
click C_ModificaProgrammazione
box plain * Yes
click C_AdvancedSetting
screen FrmAdvancedSetting
tab Tab_AdvancedOption 1
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 5567 63
expect-bytes Dati/PRG_MODE.BIN 5620 01325A646EC8
choose Cmb_KeyList "20. DEPT SHIFT, CODE"
click L_key(2)
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 5567 63
expect-bytes Dati/PRG_MODE.BIN 5588 14
expect-bytes Dati/PRG_MODE.BIN 5620 01325A646EC8

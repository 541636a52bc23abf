# A key whose code has no name, as PO, is empty, keeps its code through a save, and can be overwritten.
poke register/PRG_MODE.BIN 5593 C8
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_AdvancedSetting
screen FrmAdvancedSetting
tab Tab_AdvancedOption 1
expect L_key2(60) ""
expect L_key2(62) ""
expect-colour L_key2(60) black
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 5592 27C8
choose Cmb_KeyList "51. ABR"
click L_key2(60)
expect L_key2(60) "ABR"
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 5592 33C8

# Restore defaults takes the file of the Z300, the positions without a key included.
register model Z300
fill Dati/KEY_DEFAULTZ300.BIN 0 89 66
fill Dati/KEY_DEFAULTZ320.BIN 0 89 67
start
expect E_ComPort 4
click C_Z300
click C_ModificaProgrammazione
box plain * Yes
click C_AdvancedSetting
screen FrmAdvancedSetting
tab Tab_AdvancedOption 1
click L_key(10)
click C_RestoreDefault
expect L_key(10) "PLU 1"
expect-colour L_key(10) black
expect L_key(1) "PLU 1"
expect L_key2(1) ""
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 5567 6666666666
expect-bytes Dati/PRG_MODE.BIN 5651 6666666666

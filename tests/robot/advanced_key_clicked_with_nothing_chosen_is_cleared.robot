# A click on a key while nothing is chosen in the list gives it NO OPERATION, as often as one likes.
register model Z300
start
expect E_ComPort 4
click C_Z300
click C_ModificaProgrammazione
box plain * Yes
click C_AdvancedSetting
screen FrmAdvancedSetting
tab Tab_AdvancedOption 1
expect Cmb_KeyList ""
expect L_Preview ""
click L_key(7)
click L_key(33)
expect L_key(7) "NO OPERATION"
expect-colour L_key(7) red
expect L_key(33) "NO OPERATION"
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 5568 FF
expect-bytes Dati/PRG_MODE.BIN 5609 FF

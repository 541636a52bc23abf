# On the Z300 the two shift lists are out of sight; their bytes survive a save.
register model Z300
poke register/PRG_MODE.BIN 1 020000
start
expect E_ComPort 4
click C_Z300
click C_ModificaProgrammazione
box plain * Yes
click C_SettingMode
click C_Working_Mode
expect-visible Cmb_PluPageSelection no
expect-visible L_PluPageSelection no
expect-visible Cmb_Price1_2ShiftSel no
expect-visible L_Price1_2ShiftSel no
expect Cmb_Price1_2ShiftSel "2. Stays down"
choose Cmb_VatCalculation #1
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 1 020001

# Without a catalogue both rows of the store list read alike, and every save clears its bit.
write Setup/FrmDescEng.txt ";"
poke register/PRG_MODE.BIN 13 01
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_SettingMode
click C_EJ_Setup
expect-items Cmb_EJStore "0. SALES ONLY" "0. SALES ONLY"
expect Cmb_EJStore "0. SALES ONLY"
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 13 00
choose Cmb_EJStore #1
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 13 00

# A journal system of 7 shows the standard one, and the next save stores 0.
write Setup/FrmDescEng.txt ";"
poke register/PRG_MODE.BIN 8 07
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_SettingMode
click C_EJ_Setup
expect Cmb_EJSystem "0. STANDARD"
expect-bytes Dati/PRG_MODE.BIN 8 07
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 8 00

# A journal system of 7 is mended when the screen opens: the save of another screen writes it.
poke register/PRG_MODE.BIN 8 07
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_SettingMode
click C_EJ_Setup
click C_Annulla
expect-bytes Dati/PRG_MODE.BIN 8 07
click C_Clerk_Setup
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 8 00

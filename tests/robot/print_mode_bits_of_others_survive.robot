# Bits that no list of the print mode has survive its saves.
poke register/PRG_MODE.BIN 9 F8FFFFFFFFFCE0F0
poke register/PRG_MODE.BIN 20 80
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_SettingMode
click C_Print_Out_Mode
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 9 F8FFFFFFFFFCE0F0
expect-bytes Dati/PRG_MODE.BIN 20 80

# A language that the list lacks shows nothing; a save stores English and fills the English texts.
poke register/PRG_MODE.BIN 0 08
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_SettingMode
click C_Initial_Setup
expect Cmb_Lingua ""
click C_Salva
box information * Ok
expect-bytes Dati/PRG_MODE.BIN 0 00
expect-bytes Dati/PRG_MODE.BIN 3137 47524F555020312020202020

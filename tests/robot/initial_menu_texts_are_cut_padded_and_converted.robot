# Texts of a language file go through the register's characters, letters of two bytes as well, and are cut or padded;
# lines may end with a line feed alone.
write Setup/Spanish.txt "ABCDEFGHIJKLMNOP\r\n\xC9 c\n\xC3\xB6\xC3\x96\xC3\x85\xC3\xA4\xC3\x84\n\nlast"
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_SettingMode
click C_Initial_Setup
choose Cmb_Lingua #1
click C_Salva
box information * Ok
expect-bytes Dati/PRG_MODE.BIN 3137 4142434445464748494A4B4C
expect-bytes Dati/PRG_MODE.BIN 3149 DA2063202020202020202020
expect-bytes Dati/PRG_MODE.BIN 3161 9AE4D5EED820202020202020
expect-bytes Dati/PRG_MODE.BIN 3173 202020202020202020202020
expect-bytes Dati/PRG_MODE.BIN 3185 6C6173742020202020202020

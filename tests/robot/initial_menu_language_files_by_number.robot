# Each language number has its file, spelled just so.
write Setup/English.txt "file 0\n"
write Setup/Spanish.txt "file 1\n"
write Setup/French.txt "file 2\n"
write Setup/German.txt "file 3\n"
write Setup/dutch.txt "file 4\n"
write Setup/Purtoguese.txt "file 5\n"
write Setup/danish.txt "file 6\n"
write Setup/Norwegian.txt "file 7\n"
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
expect-bytes Dati/PRG_MODE.BIN 0 01
expect-bytes Dati/PRG_MODE.BIN 3137 66696C652031202020202020
choose Cmb_Lingua #2
click C_Salva
box information * Ok
expect-bytes Dati/PRG_MODE.BIN 0 02
expect-bytes Dati/PRG_MODE.BIN 3137 66696C652032202020202020
choose Cmb_Lingua #3
click C_Salva
box information * Ok
expect-bytes Dati/PRG_MODE.BIN 0 03
expect-bytes Dati/PRG_MODE.BIN 3137 66696C652033202020202020
choose Cmb_Lingua #4
click C_Salva
box information * Ok
expect-bytes Dati/PRG_MODE.BIN 0 04
expect-bytes Dati/PRG_MODE.BIN 3137 66696C652034202020202020
choose Cmb_Lingua #5
click C_Salva
box information * Ok
expect-bytes Dati/PRG_MODE.BIN 0 05
expect-bytes Dati/PRG_MODE.BIN 3137 66696C652035202020202020
choose Cmb_Lingua #6
click C_Salva
box information * Ok
expect-bytes Dati/PRG_MODE.BIN 0 06
expect-bytes Dati/PRG_MODE.BIN 3137 66696C652036202020202020
choose Cmb_Lingua #7
click C_Salva
box information * Ok
expect-bytes Dati/PRG_MODE.BIN 0 07
expect-bytes Dati/PRG_MODE.BIN 3137 66696C652037202020202020
choose Cmb_Lingua #0
click C_Salva
box information * Ok
expect-bytes Dati/PRG_MODE.BIN 0 00
expect-bytes Dati/PRG_MODE.BIN 3137 66696C652030202020202020

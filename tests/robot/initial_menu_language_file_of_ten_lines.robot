# A language file of ten lines changes the ten department groups and leaves every other text.
write Setup/French.txt "G 1\nG 2\nG 3\nG 4\nG 5\nG 6\nG 7\nG 8\nG 9\nG 10\n"
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_SettingMode
click C_Initial_Setup
copy Dati/PRG_MODE.BIN before.bin
choose Cmb_Lingua #2
click C_Salva
box information * Ok
expect-bytes Dati/PRG_MODE.BIN 3137 472031202020202020202020
expect-bytes Dati/PRG_MODE.BIN 3149 472032202020202020202020
expect-bytes Dati/PRG_MODE.BIN 3161 472033202020202020202020
expect-bytes Dati/PRG_MODE.BIN 3173 472034202020202020202020
expect-bytes Dati/PRG_MODE.BIN 3185 472035202020202020202020
expect-bytes Dati/PRG_MODE.BIN 3197 472036202020202020202020
expect-bytes Dati/PRG_MODE.BIN 3209 472037202020202020202020
expect-bytes Dati/PRG_MODE.BIN 3221 472038202020202020202020
expect-bytes Dati/PRG_MODE.BIN 3233 472039202020202020202020
expect-bytes Dati/PRG_MODE.BIN 3245 472031302020202020202020
# With the groups and the language as they were it is the old file again.
poke before.bin 0 02
poke before.bin 3137 472031202020202020202020
poke before.bin 3149 472032202020202020202020
poke before.bin 3161 472033202020202020202020
poke before.bin 3173 472034202020202020202020
poke before.bin 3185 472035202020202020202020
poke before.bin 3197 472036202020202020202020
poke before.bin 3209 472037202020202020202020
poke before.bin 3221 472038202020202020202020
poke before.bin 3233 472039202020202020202020
poke before.bin 3245 472031302020202020202020
expect-same Dati/PRG_MODE.BIN before.bin

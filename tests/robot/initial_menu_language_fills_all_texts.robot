# Saving another language says so and fills every text of the programming from the file of that language.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_SettingMode
click C_Initial_Setup
copy Dati/PRG_MODE.BIN before.bin
choose Cmb_Lingua "3. German"
click C_Salva
box information * Ok
screen FrmInitialMenu
expect-bytes Dati/PRG_MODE.BIN 0 03
expect-bytes Dati/PRG_MODE.BIN 3137 475255505045203120202020
expect-bytes Dati/PRG_MODE.BIN 3257 FF49FF48FF5220FF47FF45FF53FF43FF48FFD8FF46FF5420
expect-bytes Dati/PRG_MODE.BIN 3737 47455343484C4F5353454E20202020202020202020202020202020202020202020202020202020202020
expect-bytes Dati/PRG_MODE.BIN 4115 4B756E64653A202020202020202020202020202020202020
expect-bytes Dati/PRG_MODE.BIN 4235 53554D4D452020202020
expect-bytes Dati/PRG_MODE.BIN 5543 454E44452044455320424552494348545320202020202020
expect-different Dati/PRG_MODE.BIN before.bin
copy Dati/PRG_MODE.BIN german.bin
# Now nothing is changed any more.
click C_Salva
screen FrmInitialMenu
expect-same Dati/PRG_MODE.BIN german.bin
click C_Invia_Ecr
expect-bytes register/PRG_MODE.BIN 0 03
expect-bytes register/PRG_MODE.BIN 4235 53554D4D452020202020

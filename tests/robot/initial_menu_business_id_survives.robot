# The business id is never seen; ten digits in, ten digits out, on the Z300 as well.
register model Z300
poke register/PRG_MODE.BIN 25 9078563412
start
expect E_ComPort 4
click C_Z300
click C_ModificaProgrammazione
box plain * Yes
click C_SettingMode
click C_Initial_Setup
expect-visible E_BusinessID no
expect-visible L_BusinessID no
expect E_BusinessID 1234567890
expect-maxlength E_BusinessID 10
choose Cmb_KeyTone #1
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 25 9078563412

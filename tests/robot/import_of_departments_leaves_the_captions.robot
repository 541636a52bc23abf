# An import file with only department lines leaves the captions untouched.
write depts.txt "VAR:01:One:100:1:1\r\nVAR:02\r\n"
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode

click C_Custom_Import
file depts.txt
click C_SetVatRate
click C_Salva
copy Dati/PRG_MODE.BIN Dati/compare.bin
copy register/PRG_MODE.BIN Dati/register.bin
fill Dati/compare.bin 329 44 00
fill Dati/register.bin 329 44 00
expect-same Dati/compare.bin Dati/register.bin
expect-bytes Dati/PRG_MODE.BIN 329 4F6E65202020202020202020
expect-bytes Dati/PRG_MODE.BIN 351 202020202020202020202020
expect-bytes Dati/PRG_MODE.BIN 367 000000000000

# Numbers that do not fit are zero, prices keep the digits that fit, and nothing is told.
write odd.txt "VAR:01:A:123456789:256:1000\r\nVAR:02:B:abc:-1:x\r\nVAR:03:C:2.5:9:255:more\r\n"
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode

click C_Custom_Import
file odd.txt
nobox
click C_SetVatRate
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 345 000089674523
expect-bytes Dati/PRG_MODE.BIN 367 000000000000
expect-bytes Dati/PRG_MODE.BIN 389 09FF03000000

# A password of 999 is taken; a fourth digit brings the box and is cut.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_ClerkSystemProgram
type E_Password ""
key Ctrl+a
keys "999"
nobox
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 2533 9909
expect Cmb_ClerkNumber "2"
focus E_Password
key Ctrl+a
keys "1000"
box critical "The value is too high. The last digit was removed." Ok
expect E_Password "100"

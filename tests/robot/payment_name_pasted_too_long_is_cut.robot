# A name of 14 characters that is pasted in is cut to 12 at once.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_TenderProgram
paste E_Name(0) "ABCDEFGHIJKLMN"
expect E_Name(0) "ABCDEFGHIJKL"
keys "Z"
expect E_Name(0) "ABCDEFGHIJKL"
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 2991 4142434445464748494A4B4C

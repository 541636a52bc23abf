# An empty password field saves as 0 and reads 000; a 7 becomes 007.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_ClerkSystemProgram
expect E_Password "011"
focus E_Password
key Ctrl+a
key Delete
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 2533 0000
expect-cell Fg_Clerk 1 2 "000"
focus E_Password
key Ctrl+a
keys "7"
focus E_Name
expect E_Password "007"

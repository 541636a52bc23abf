# A start code of 0 shows as 0, is gone while it is entered, and is eight zero bytes.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_PluPageProgram
focus E_PluPage(0)
expect E_PluPage(0) "1"
key Ctrl+a
key Delete
focus E_PluPage(1)
expect E_PluPage(0) "0"
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 70 0000000000000000
focus E_PluPage(0)
expect E_PluPage(0) ""
keys "a-7."
expect E_PluPage(0) "7"

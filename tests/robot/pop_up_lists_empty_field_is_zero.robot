# An emptied field becomes 0 when it is left, and a save by the button stores 0.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_PopUpPluList
focus E_Plu1(1)
key Ctrl+a
key Delete
expect E_Plu1(1) ""
click C_Salva
expect E_Plu1(1) "0"
expect-bytes Dati/PRG_PLU.BIN 2 0000000000000000

# An entry takes fourteen digits, one more than a code can have.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_PopUpPluList
focus E_Plu1(5)
expect E_Plu1(5) ""
keys "99999999999999"
nobox
keys "1"
box critical "The value is too high. The last digit was removed." Ok
expect E_Plu1(5) "99999999999999"
click C_Salva
expect-bytes Dati/PRG_PLU.BIN 34 9999999999999900

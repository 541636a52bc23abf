# A price is typed in the smallest unit, without a separator; more than 9999999 brings a box.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_PluProgram
focus E_Price1
expect E_Price1 "160"
key Ctrl+a
keys "9999999"
nobox
keys "1"
box critical "The value is too high. The last digit was removed." Ok
expect E_Price1 "9999999"
key Enter
expect-focus C_Salva
expect E_Price1 "99999.99"
focus E_Price2
key Ctrl+a
key Delete
key Enter
expect E_Price2 "0.00"
click C_Salva
expect-bytes Dati/PRG_PLU.BIN 830 9999990900000000
expect-bytes Dati/PRG_PLU.BIN 826 62

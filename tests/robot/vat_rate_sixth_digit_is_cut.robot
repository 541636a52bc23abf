# A sixth digit is too much: a critical box, and the last digit is gone. The user types on.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_SetVatRate
focus E_VatRate(2)
key Ctrl+a
keys "123456"
box critical "The value is too high. The last digit was removed." Ok
expect E_VatRate(2) "12345"
expect-focus E_VatRate(2)
key Backspace
keys "9"
nobox
expect E_VatRate(2) "12349"
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 42 49230100

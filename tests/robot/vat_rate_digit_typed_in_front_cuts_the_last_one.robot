# The sixth digit is typed at the beginning: it is the last digit that goes, and the cursor stays behind what was typed.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_SetVatRate
focus E_VatRate(1)
key Home
keys "9"
box critical "The value is too high. The last digit was removed." Ok
expect E_VatRate(1) "92200"
expect-cursor E_VatRate(1) 1

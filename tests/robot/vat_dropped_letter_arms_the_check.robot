# A letter changes nothing, and yet the next change counts as typed: the pasted rate is checked now.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_SetVatRate
focus E_VatRate(1)
keys "x"
expect E_VatRate(1) "22000"
paste E_VatRate(1) 123456
box critical "The value is too high. The last digit was removed." Ok
expect E_VatRate(1) "12345"
paste E_VatRate(1) 654321
nobox
expect E_VatRate(1) "654321"

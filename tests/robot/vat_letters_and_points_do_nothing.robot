# Letters, points, signs and blanks do nothing in a rate.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_SetVatRate
focus E_VatRate(1)
key Ctrl+a
keys "7.5 %,-+aZ"
expect E_VatRate(1) "75"
click C_Salva
expect E_VatRate(1) "0.075 %"

# F1 in the middle of typing a rate: the manual opens beside it, and the rate stays as it was typed. The next digit goes
# on behind the others.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_SetVatRate
focus E_VatRate(1)
key Ctrl+a
keys "75"
key F1
screen FrmSetVatRate
expect E_VatRate(1) "75"
keys "00"
expect E_VatRate(1) "7500"
click I_Help
screen FrmSetVatRate

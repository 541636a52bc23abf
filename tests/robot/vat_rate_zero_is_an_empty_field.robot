# A rate of zero empties its field when it is entered, and comes back as 0 %.
poke register/PRG_MODE.BIN 50 00000000
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_SetVatRate
expect E_VatRate(4) "0.000 %"
focus E_VatRate(4)
expect E_VatRate(4) ""
focus E_VatRate(1)
expect E_VatRate(4) "0 %"

# A field that is entered shows the bare number of thousandths; left again untouched it shows the short form.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_SetVatRate
focus E_VatRate(1)
expect E_VatRate(1) "22000"
focus E_VatRate(3)
expect E_VatRate(1) "22 %"
expect E_VatRate(3) "5000"
click C_Salva
expect E_VatRate(3) "5 %"
expect E_VatRate(2) "10.000 %"
expect-same Dati/PRG_MODE.BIN register/PRG_MODE.BIN

# A rate that is higher than can be typed is shown as it is, comes back as it is, and saves unchanged. The limit acts as
# soon as a digit is typed.
poke register/PRG_MODE.BIN 38 99999999
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_SetVatRate
expect E_VatRate(1) "99999.999 %"
focus E_VatRate(1)
nobox
expect E_VatRate(1) "99999999"
focus E_VatRate(2)
nobox
expect E_VatRate(1) "99999.999 %"
click C_Salva
expect-same Dati/PRG_MODE.BIN register/PRG_MODE.BIN
focus E_VatRate(1)
key End
keys "1"
box critical "The value is too high. The last digit was removed." Ok
expect E_VatRate(1) "99999999"
key Backspace
box critical "The value is too high. The last digit was removed." Ok
expect E_VatRate(1) "999999"
key Backspace
nobox
expect E_VatRate(1) "99999"

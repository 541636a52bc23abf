# Leading zeros do not count towards the limit; they are gone when the field is left.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_SetVatRate
focus E_VatRate(1)
key Ctrl+a
keys "00000750"
nobox
expect E_VatRate(1) "00000750"
click C_Salva
expect E_VatRate(1) "0.75 %"
expect-bytes Dati/PRG_MODE.BIN 38 50070000

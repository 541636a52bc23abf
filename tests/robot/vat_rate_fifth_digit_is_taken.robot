# 99999 typed digit by digit is taken without a word.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_SetVatRate
focus E_VatRate(2)
key Ctrl+a
keys "99999"
nobox
expect E_VatRate(2) "99999"
click C_Salva
expect E_VatRate(2) "99.999 %"
expect-bytes Dati/PRG_MODE.BIN 42 99990900

# A check digit or newspaper byte above 1 counts as yes, and a save makes it 1.
poke register/PRG_MODE.BIN 99 0702FF
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_InstoreBarcodeSetting
expect Cmb_PriceCheckDigit "1. Yes"
expect Cmb_NewsPaper "1. Yes"
expect Cmb_CodeLenght "1. Short"
expect-cell FG_InstoreBarcode 1 7 "Yes"
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 99 010101

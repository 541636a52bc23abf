# Digits of flag and price are stored as they are picked, whatever the length of the code.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_InstoreBarcodeSetting
choose Cmb_CodeLenght "1. Short"
choose Cmb_DigitsOfFlag "3"
choose Cmb_DigitsOfPrice "8"
click C_Salva
nobox
expect-bytes Dati/PRG_MODE.BIN 96 0308000100

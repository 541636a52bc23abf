# Digits above what the lists offer are shown as the file has them, and a save writes them back.
poke register/PRG_MODE.BIN 96 09C805
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_InstoreBarcodeSetting
expect Cmb_DigitsOfFlag "9"
expect Cmb_DigitsOfPrice "200"
expect Cmb_NumberOfFc "5"
expect-items Cmb_NumberOfFc "0" "1" "2" "3" "4"
click C_Salva
expect-same Dati/PRG_MODE.BIN register/PRG_MODE.BIN

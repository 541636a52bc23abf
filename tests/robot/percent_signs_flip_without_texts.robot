# Without the catalogue the sign of a percentage key flips with each opening and saving.
write Setup/FrmDescEng.txt ""
poke register/PRG_MODE.BIN 66 3C
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_PercentageProgram
expect-items Cmb_P1Sign "1. DISCOUNT" "0. ADD ON"
expect-items Cmb_P2Sign "1. DISCOUNT" "0. ADD ON"
expect Cmb_P1Sign "1. DISCOUNT"
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 66 3F
click C_Annulla
click C_PercentageProgram
expect Cmb_P1Sign "0. ADD ON"
expect Cmb_P2Sign "0. ADD ON"
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 66 3C

# Saving walks up to clerk 14 and stays there; clerk 15, once chosen, stays too.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_ClerkSystemProgram
choose Cmb_ClerkNumber "13"
click C_Salva
expect Cmb_ClerkNumber "14"
click C_Salva
expect Cmb_ClerkNumber "14"
choose Cmb_ClerkNumber "15"
type E_Name "Last"
click C_Salva
expect Cmb_ClerkNumber "15"
expect E_Name "Last"
expect-bytes Dati/PRG_MODE.BIN 2899 4C61737420202020

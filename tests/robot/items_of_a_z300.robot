# The items of a Z300, and a save that changes nothing.
register model Z300
start
expect E_ComPort 4
click C_Z300
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_PluProgram
expect-title "PLUs"
expect E_Name "Country loaf    "
click C_Salva
expect Cmb_PluNumber 2
expect-same Dati/PRG_PLU.BIN register/PRG_PLU.BIN

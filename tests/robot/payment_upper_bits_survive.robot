# Bits 3 to 7 of a means of payment survive a save.
poke register/PRG_MODE.BIN 3004 F8
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_TenderProgram
expect Cmb_TenderingAmount(0) "0. Optional"
expect Cmb_ChangeAllowed(0) "0. Yes"
expect Cmb_Drawer(0) "0. Open"
choose Cmb_Drawer(0) "1. Closed"
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 3004 FC

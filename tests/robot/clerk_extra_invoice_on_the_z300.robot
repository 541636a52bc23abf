# A Z300 does not show the extra invoice; the bit of a clerk keeps its value through a save.
register model Z300
poke register/PRG_MODE.BIN 2531 40
poke register/PRG_MODE.BIN 2559 00
start
expect E_ComPort 4
click C_Z300
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_ClerkSystemProgram
expect-visible Cmb_ExtraInvoice no
expect-visible L_ExtraInvoice no
expect-cell Fg_Clerk 0 7 ""
expect-cell Fg_Clerk 0 8 "Paid Out"
choose Cmb_Void "1. Disabled"
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 2531 41
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 2559 00

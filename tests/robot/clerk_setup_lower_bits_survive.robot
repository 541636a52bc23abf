# The clerk setup changes the four upper bits of its byte and leaves the lower ones.
poke register/PRG_MODE.BIN 9 0F
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_SettingMode
click C_Clerk_Setup
choose Cmb_ClerkSystem #1
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 9 1F
choose Cmb_MustClerkPassword #1
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 9 3F
choose Cmb_EachTransactionOfClerk #1
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 9 7F
choose Cmb_LoginClerkDisplay #1
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 9 FF
choose Cmb_ClerkSystem #0
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 9 EF

# A setting screen is worked by the keyboard alone: the arrow keys choose, Tab goes on, Enter saves and goes back.
poke register/PRG_MODE.BIN 0 0001010001010001000040E8010601070FA0C02100
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_SettingMode
click C_Clerk_Setup
expect-focus Cmb_ClerkSystem
key Down
key Tab
expect-focus Cmb_MustClerkPassword
key Tab
expect-focus Cmb_EachTransactionOfClerk
key Down
key Tab
expect-focus Cmb_LoginClerkDisplay
key Tab
expect-focus C_Salva
key Enter
expect-bytes Dati/PRG_MODE.BIN 9 50
key Tab 2
expect-focus C_Annulla
key Enter
screen FrmSettingMode

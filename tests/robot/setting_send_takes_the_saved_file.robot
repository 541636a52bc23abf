# What is chosen on a setting screen and not saved does not go to the register.
poke register/PRG_MODE.BIN 0 0001010001010001000040E8010601070FA0C02100
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_SettingMode
click C_Clerk_Setup
choose Cmb_ClerkSystem #1
click C_Salva
choose Cmb_ClerkSystem #0
click C_Invia_Ecr
screen FrmClerkMenuSetup
expect Cmb_ClerkSystem "0. Inactive"
expect-bytes register/PRG_MODE.BIN 9 10
expect-enabled C_Salva yes
expect-enabled C_Invia_Ecr yes
expect-enabled C_Annulla yes

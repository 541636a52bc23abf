# The initial menu has seven lists; each choice saves its bit or byte, and the bits of other screens in the same bytes
# stay.
poke register/PRG_MODE.BIN 0 0001010001010001000040E8010601070FA0C02100
poke register/PRG_MODE.BIN 9 F8
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_SettingMode
click C_Initial_Setup
screen FrmInitialMenu
expect-title "Initial setup"
expect-items Cmb_Lingua "0. English" "1. Spanish" "2. French" "3. German" "4. Dutch" "5. Portuguese" "6. Danish" "7. Norwegian"
expect-items Cmb_DateFormat "0. DD-MM-YY" "1. MM-DD-YY"
expect-items Cmb_TimeFormat "0. 24 hours" "1. 12 hours"
expect-items Cmb_KeyTone "0. Sound" "1. No sound"
expect-items Cmb_WindingMotor "0. EJ only" "1. PRG, X, Z mode"
expect-items Cmb_EuRoundigSel "0. No" "1. Euro" "2. Swiss" "3. Danish" "" ""
expect-items Cmb_RegisterMode "0. Journal mode" "1. Receipt mode"
expect Cmb_Lingua "0. English"
expect Cmb_EuRoundigSel "1. Euro"
choose Cmb_DateFormat #1
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 9 F940E8
choose Cmb_TimeFormat #1
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 9 FB40E8
choose Cmb_KeyTone #1
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 9 FF40E8
choose Cmb_WindingMotor #1
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 9 FF41E8
choose Cmb_RegisterMode #0
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 9 FF41C8
choose Cmb_EuRoundigSel "3. Danish"
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 4 03
screen FrmInitialMenu
click C_Annulla
screen FrmSettingMode
click C_Initial_Setup
expect Cmb_DateFormat "1. MM-DD-YY"
expect Cmb_RegisterMode "0. Journal mode"
expect Cmb_EuRoundigSel "3. Danish"

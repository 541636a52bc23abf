# With the language unchanged, a save shows no message and leaves the texts, although its file has others.
poke register/PRG_MODE.BIN 0 0001010001010001000040E8010601070FA0C02100
write Setup/English.txt "OTHER\n"
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_SettingMode
click C_Initial_Setup
copy Dati/PRG_MODE.BIN before.bin
choose Cmb_KeyTone #1
click C_Salva
screen FrmInitialMenu
poke before.bin 9 04
expect-same Dati/PRG_MODE.BIN before.bin

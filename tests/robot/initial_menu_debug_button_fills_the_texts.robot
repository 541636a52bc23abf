# With the option DEBUG a button fills the texts without changing the language; the file follows with the next save.
poke register/PRG_MODE.BIN 0 0001010001010001000040E8010601070FA0C02100
start DEBUG
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_SettingMode
click C_Initial_Setup
expect-visible C_SettaLingua yes
expect C_SettaLingua "Setta Lingua"
copy Dati/PRG_MODE.BIN before.bin
choose Cmb_Lingua #1
click C_SettaLingua
screen FrmInitialMenu
expect-same Dati/PRG_MODE.BIN before.bin
choose Cmb_Lingua #0
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 0 00
expect-bytes Dati/PRG_MODE.BIN 3137 475255504F20312020202020

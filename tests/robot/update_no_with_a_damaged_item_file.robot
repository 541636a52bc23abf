# Item files that are cut short, empty, or count more items than there can be: the Setup menu opens with each.
copy register/PRG_MODE.BIN Dati/PRG_MODE.BIN
write Dati/PRG_PLU.BIN "\x05"
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * No
screen FrmSetup
click C_Exit
write Dati/PRG_PLU.BIN ""
click C_ModificaProgrammazione
box plain * No
screen FrmSetup
click C_Exit
copy register/PRG_PLU.BIN Dati/PRG_PLU.BIN
poke Dati/PRG_PLU.BIN 0 FF7F
click C_ModificaProgrammazione
box plain * No
screen FrmSetup
click C_Exit
poke Dati/PRG_PLU.BIN 0 0080
click C_ModificaProgrammazione
box plain * No
screen FrmSetup
click C_Exit
fill Dati/PRG_PLU.BIN 0 140000 FF
click C_ModificaProgrammazione
box plain * No
screen FrmSetup

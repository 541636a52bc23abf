# An image whose layout has a single digit key in the wrong place is turned away, on either model.
copy register/PRG_MODE.BIN Dati/PRG_MODE.BIN
poke Dati/PRG_MODE.BIN 5638 04
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * No
box plain * Ok
screen FrmPres
copy register/samples/Z300/PRG_MODE.BIN Dati/PRG_MODE.BIN
poke Dati/PRG_MODE.BIN 5579 00
click C_Z300
click C_ModificaProgrammazione
box plain * No
box plain * Ok
screen FrmPres
poke Dati/PRG_MODE.BIN 5579 07
click C_Z300
click C_ModificaProgrammazione
box plain * No
screen FrmSetup

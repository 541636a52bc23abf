# A short image as the first that is read: what it lacks is zero, and it is turned away.
copy register/PRG_MODE.BIN Dati/PRG_MODE.BIN
truncate Dati/PRG_MODE.BIN 5600
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * No
box plain * Ok
screen FrmPres
expect-file Dati/PRG_MODE.BIN size 5600

# An empty image is turned away, and so is one of random bytes.
write Dati/PRG_MODE.BIN ""
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * No
box plain * Ok
screen FrmPres
fill Dati/PRG_MODE.BIN 0 5656 A7
click C_Z320
click C_ModificaProgrammazione
box plain * No
box plain * Ok
screen FrmPres

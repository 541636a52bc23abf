# The linked register is a Z300 and the Z320 was chosen: its files come over, are turned away, and the main menu closes.
register model Z300
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
box plain "The cash register or its programming does not match the chosen model, or the register does not answer.\nCheck the cable, the port and the model on the start screen, then try again." Ok
screen FrmPres
expect-same Dati/PRG_MODE.BIN register/samples/Z300/PRG_MODE.BIN
click C_Z300
click C_ModificaProgrammazione
box plain * No
screen FrmSetup

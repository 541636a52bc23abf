# A very old register and no files: nothing is copied, the missing image is made empty, and the user is told.
register release none
start
expect E_ComPort 4
click C_Z320
click C_NuovaProgrammazione
box plain * Yes
box plain "The cash register or its programming does not match the chosen model, or the register does not answer.\nCheck the cable, the port and the model on the start screen, then try again." Ok
screen FrmPrincipale
expect-file Dati/PRG_MODE.BIN size 0
expect-file Dati/PRG_PLU.BIN missing

# The question is answered with No: the files stay, and the main menu too.
poke Dati/PRG_MODE.BIN 0 0102
start
expect E_ComPort 4
click C_Z320
click C_NuovaProgrammazione
box plain * No
screen FrmPrincipale
expect-file Dati/PRG_MODE.BIN size 2
expect-file Dati/PRG_PLU.BIN missing

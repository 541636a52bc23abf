# The question has a third answer, Cancel: nothing is done.
start
expect E_ComPort 4
click C_Z320
forget-calls
click C_ModificaProgrammazione
box plain * Cancel
screen FrmPrincipale
expect-calls 0
expect-file Dati/PRG_MODE.BIN missing

# An older firmware gives its banner in a file of another name: it is read all the same.
register release RELEA.BIN
start
expect E_ComPort 4
click C_Z320
screen FrmPrincipale
expect L_Release_Fw "ECRZ300/ECRZ320F    FW rel.1.04     "
expect-file Dati/RELEA.BIN size 36
expect-file Dati/RELEASE.BIN missing

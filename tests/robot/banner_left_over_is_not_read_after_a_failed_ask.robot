# The same with no register: the old banner is removed and not read.
write Dati/RELEA.BIN "ANOTHER FAMILY 5000 FW rel.2.00     "
register off
start
expect-colour E_ComPort red
click C_Z320
screen FrmPrincipale
expect L_Release_Fw ""
expect-file Dati/RELEA.BIN missing
expect-file Dati/RELEASE.BIN missing

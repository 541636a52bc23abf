# Release files of an earlier run lie there, with a foreign banner: they are removed first, and the register's own is
# read.
write Dati/RELEA.BIN "ANOTHER FAMILY 5000 FW rel.2.00     "
write Dati/RELEASE.BIN "ANOTHER FAMILY 6000 FW rel.2.00     "
start
expect E_ComPort 4
click C_Z320
screen FrmPrincipale
expect L_Release_Fw "ECRZ300/ECRZ320F    FW rel.1.04     "
expect-file Dati/RELEA.BIN missing

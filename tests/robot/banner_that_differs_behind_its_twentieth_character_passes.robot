# What stands behind the family's name may read as it likes.
register banner "ECRZ300/ECRZ320F    ANY TEXT ELSE 12"
start
expect E_ComPort 4
click C_Z320
screen FrmPrincipale
expect L_Release_Fw "ECRZ300/ECRZ320F    ANY TEXT ELSE 12"

# The main menu for the Z300 names the Z300.
start
expect E_ComPort 4
click C_Z300
screen FrmPrincipale
expect-title "Vermanto ECR Programming Tool -   ECRZ300"
expect L_Release_Fw "ECRZ300/ECRZ320F    FW rel.1.04     "

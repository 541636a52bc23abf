# The main menu for the Z320: the model in the title, the banner of the register's firmware below, all texts in English.
start
expect E_ComPort 4
forget-calls
click C_Z320
screen FrmPrincipale
expect-title "Vermanto ECR Programming Tool -   ECRZ320"
expect L_Release_Fw "ECRZ300/ECRZ320F    FW rel.1.04     "
expect C_NuovaProgrammazione "Program a new cash register"
expect C_ModificaProgrammazione "Update cash register programming"
expect C_Logo "Set up a logo"
expect C_Back "Back"
expect-focus C_ModificaProgrammazione
expect-calls 1
expect-call 1 "send_cmd folder=. direction=0 file=22 timeout=3 port=4"
expect-file Dati/RELEASE.BIN size 36

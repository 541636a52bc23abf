# A programming was open already when the default image is found to be gone: it does not go on as if it were the new
# one. The wrong-register message comes, as it does at the first time, and the empty file that is left is turned away too.
start
expect E_ComPort 4
click C_Z320
click C_NuovaProgrammazione
box plain * Yes
screen FrmSetup
click C_Exit
screen FrmPrincipale
delete Dati/ECRZ320/ECRZ320_PRG_MODE.BIN
click C_NuovaProgrammazione
box plain * Yes
box plain "The default settings (PRG_MODE.BIN) could not be copied.\nCheck the Dati folder and the free space on the disk." Ok
box plain "The cash register or its programming does not match the chosen model, or the register does not answer.\nCheck the cable, the port and the model on the start screen, then try again." Ok
screen FrmPrincipale
expect-log "copia_def_file: 53 File not found"
expect-file Dati/PRG_MODE.BIN size 0
click C_ModificaProgrammazione
box plain * No
box plain * Ok
screen FrmPres

# A folder has the image's name: it cannot be replaced. The box and the log tell of the copy, the image is turned away.
make-folder Dati/PRG_MODE.BIN
start
expect E_ComPort 4
click C_Z320
click C_NuovaProgrammazione
box plain * Yes
box plain "The default settings (PRG_MODE.BIN) could not be copied.\nCheck the Dati folder and the free space on the disk." Ok
box plain "The cash register or its programming does not match the chosen model, or the register does not answer.\nCheck the cable, the port and the model on the start screen, then try again." Ok
screen FrmPrincipale
expect-log "copia_def_file: 75 Path or file access error"
expect-file Dati/PRG_MODE.BIN folder

# The model's default image is not there: a box, a log line with the error's number, and, since there is no image then,
# the wrong-register message. The main menu stays.
delete Dati/ECRZ320/ECRZ320_PRG_MODE.BIN
copy register/PRG_MODE.BIN Dati/PRG_MODE.BIN
copy register/PRG_PLU.BIN Dati/PRG_PLU.BIN
start
expect E_ComPort 4
click C_Z320
click C_NuovaProgrammazione
box plain * Yes
box plain "The default settings (PRG_MODE.BIN) could not be copied.\nCheck the Dati folder and the free space on the disk." Ok
box plain "The cash register or its programming does not match the chosen model, or the register does not answer.\nCheck the cable, the port and the model on the start screen, then try again." Ok
screen FrmPrincipale
expect-log "copia_def_file: 53 File not found"
expect-file Dati/PRG_MODE.BIN size 0
expect-file Dati/PRG_PLU.BIN missing

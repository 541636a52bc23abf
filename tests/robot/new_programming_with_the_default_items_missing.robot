# The model's default items are not there: a box and a log line. The image is there, and so the Setup menu opens, with an
# empty item file.
delete Dati/ECRZ320/ECRZ320_PRG_PLU.BIN
start
expect E_ComPort 4
click C_Z320
click C_NuovaProgrammazione
box plain * Yes
box plain "The default items (PRG_PLU.BIN) could not be copied.\nCheck the Dati folder and the free space on the disk." Ok
screen FrmSetup
expect-log "copia_def_file: 53 File not found"
expect-same Dati/PRG_MODE.BIN Dati/ECRZ320/ECRZ320_PRG_MODE.BIN
expect-file Dati/PRG_PLU.BIN size 0

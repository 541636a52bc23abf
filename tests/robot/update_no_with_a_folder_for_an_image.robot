# A folder has the image's name: nothing can be read, the message comes, and the main menu closes. A folder for the items
# does no harm.
make-folder Dati/PRG_MODE.BIN
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * No
box plain * Ok
screen FrmPres
expect-log "FrmPrincipale C_ModificaProgrammazione: Path or file access error"
delete Dati/PRG_MODE.BIN
delete Dati/PRG_PLU.BIN
make-folder Dati/PRG_PLU.BIN
click C_Z320
click C_ModificaProgrammazione
box plain * No
screen FrmSetup
expect-file Dati/PRG_PLU.BIN folder

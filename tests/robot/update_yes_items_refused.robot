# The register refuses the items: the box has a blank between text and reason, the log line the reason too. The image has
# come, the old items are gone, and the main menu stays.
copy register/PRG_PLU.BIN Dati/PRG_PLU.BIN
start
expect E_ComPort 4
click C_Z320
register answer 1026 1
forget-calls
click C_ModificaProgrammazione
box plain * Yes
box critical "Communication with the cash register failed.\nCheck the cable and the port.\n The writing error occurred by the communication." Ok
screen FrmPrincipale
expect-log "REGWIRE return error: 402 . File 1 Desc: The writing error occurred by the communication."
expect-calls 3
expect-same Dati/PRG_MODE.BIN register/PRG_MODE.BIN
expect-file Dati/PRG_PLU.BIN missing

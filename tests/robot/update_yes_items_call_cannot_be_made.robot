# The call for the items cannot be made: a box and a log line. The old items are gone already, and the Setup menu opens
# with the register's image.
copy register/PRG_PLU.BIN Dati/PRG_PLU.BIN
start
expect E_ComPort 4
click C_Z320
register fails 1
forget-calls
click C_ModificaProgrammazione
box plain * Yes
box plain "Reading the cash register failed: the exchange program could not be started.\nCheck that regwire.exe and the link library are in the program's folder." Ok
screen FrmSetup
expect-log "Errore nella chiamata di REGWIRE. File 1"
expect-calls 3
expect-same Dati/PRG_MODE.BIN register/PRG_MODE.BIN
expect-file Dati/PRG_PLU.BIN size 0

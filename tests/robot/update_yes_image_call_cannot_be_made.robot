# The call for the image cannot be made: a box and a log line, and the flow goes on with the files that are there.
copy register/PRG_MODE.BIN Dati/PRG_MODE.BIN
copy register/PRG_PLU.BIN Dati/PRG_PLU.BIN
poke Dati/PRG_MODE.BIN 38 00500100
start
expect E_ComPort 4
click C_Z320
register fails 0
forget-calls
click C_ModificaProgrammazione
box plain * Yes
box plain "Reading the cash register failed: the exchange program could not be started.\nCheck that regwire.exe and the link library are in the program's folder." Ok
screen FrmSetup
expect-log "Errore nella chiamata di REGWIRE. File 0"
expect-calls 2
click C_ProgramMode
click C_SetVatRate
expect E_VatRate(1) "15.000 %"

# A code that is in no table has no description.
start
expect E_ComPort 4
click C_Z320
register answer 48879 0
click C_ModificaProgrammazione
box plain * Yes
box critical "Communication with the cash register failed.\nCheck the cable and the port.\nNo description" Ok
expect-log "REGWIRE return error: BEEF . File 0"

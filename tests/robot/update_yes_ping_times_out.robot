# The exchange program hangs over the ping: it is ended, and the error text ends with X.
start
expect E_ComPort 4
click C_Z320
register hang 12
click C_ModificaProgrammazione
box plain * Yes
box plain "Communication with the cash register failed.\nCheck the cable and the port.\nX" Ok
expect-log "Receive_ReportEcr error. File 12 Code: 270F Desc: Timeout Error"
expect-process regwire.exe no

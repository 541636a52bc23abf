# The exchange program hangs over the items: box, log line with the reason, and the process is ended.
start
expect E_ComPort 4
click C_Z320
register hang 1
click C_ModificaProgrammazione
box plain * Yes
box critical "Communication with the cash register failed.\nCheck the cable and the port.\n Timeout Error" Ok
screen FrmPrincipale
expect-log "REGWIRE return error: 270F . File 1 Desc: Timeout Error"
expect-process regwire.exe no

# The exchange program hangs over the image: the box says Timeout Error, and the hanging process is ended.
start
expect E_ComPort 4
click C_Z320
register hang 0
click C_ModificaProgrammazione
box plain * Yes
expect-process regwire.exe yes
box critical "Communication with the cash register failed.\nCheck the cable and the port.\nTimeout Error" Ok
screen FrmPrincipale
expect-log "REGWIRE return error: 270F . File 0"
expect-process regwire.exe no

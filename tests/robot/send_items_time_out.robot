# The exchange program hangs over the items: the failure box, and the hanging process is ended.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_SetVatRate
register hang 1
click C_Invia_Ecr
box critical * Ok
expect-log "Send_PrgPluToEcr error. Code: 270F Desc: Timeout Error"
expect-process regwire.exe no

# The exchange program hangs over the link check: it is ended, the wrong-register message comes, and the program ends.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_SetVatRate
register hang 22
click C_Invia_Ecr
box plain * Ok
expect-ended
expect-log "Get_Release error. Code: 270F Desc: Timeout Error"
expect-process regwire.exe no

# The exchange program hangs over the image: the failure box, and the hanging process is ended.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_SetVatRate
register hang 0
click C_Invia_Ecr
box critical "Sending to the cash register failed.\nCheck that it is switched on, connected and not busy, then send again." Ok
expect-log "Send_PrgModeToEcr error. Code: 270F Desc: Timeout Error"
expect-process regwire.exe no
click C_Invia_Ecr
screen FrmSetVatRate

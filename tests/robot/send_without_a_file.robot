# The image's file has gone: there is nothing to send, and the exchange says so.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_SetVatRate
delete Dati/PRG_MODE.BIN
click C_Invia_Ecr
box critical "Sending to the cash register failed.\nCheck that it is switched on, connected and not busy, then send again." Ok
expect-log "Send_PrgModeToEcr error. Code: 801 Desc: The specified file cannot be opened."
expect-same register/PRG_MODE.BIN register/samples/Z320/PRG_MODE.BIN

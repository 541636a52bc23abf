# The image file has bytes behind its end: a save keeps them. The register takes no such file.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_SetVatRate
click C_Annulla
poke Dati/PRG_MODE.BIN 5656 DEADBEEF00
click C_SetVatRate
paste E_VatRate(1) 15000
click C_Salva
expect-file Dati/PRG_MODE.BIN size 5661
expect-bytes Dati/PRG_MODE.BIN 38 00500100
expect-bytes Dati/PRG_MODE.BIN 5656 DEADBEEF00
click C_Invia_Ecr
box critical * Ok
expect-log "Send_PrgModeToEcr error. Code: 1002 Desc: The error was returned from the ECR side."
expect-same register/PRG_MODE.BIN register/samples/Z320/PRG_MODE.BIN

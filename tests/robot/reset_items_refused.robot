# The image goes, the items are refused: the failure in a critical box, once.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
register answer 1026 1
click C_Reset
box plain * Yes
box critical "Sending to the cash register failed.\nCheck that it is switched on, connected and not busy, then send again." Ok
screen FrmSetup
expect-log "Send_PrgPluToEcr error. Code: 402 Desc: The writing error occurred by the communication."
expect-same register/PRG_MODE.BIN Dati/ECRZ320/ECRZ320_PRG_MODE.BIN
expect-same register/PRG_PLU.BIN register/samples/Z320/PRG_PLU.BIN

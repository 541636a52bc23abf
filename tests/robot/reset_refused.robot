# The register refuses the image: the failure in a critical box, a log line, and the menu stays. The items are not sent.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
register answer 4097 0
click C_Reset
box plain * Yes
box critical "Sending to the cash register failed.\nCheck that it is switched on, connected and not busy, then send again." Ok
screen FrmSetup
expect-log "Send_PrgModeToEcr error. Code: 1001 Desc: The ECR side is in the state of BUSY."
expect-same Dati/PRG_MODE.BIN Dati/ECRZ320/ECRZ320_PRG_MODE.BIN
expect-same Dati/PRG_PLU.BIN Dati/ECRZ320/ECRZ320_PRG_PLU.BIN
expect-same register/PRG_MODE.BIN register/samples/Z320/PRG_MODE.BIN
expect-same register/PRG_PLU.BIN register/samples/Z320/PRG_PLU.BIN

# The image goes, the items are refused: one failure box, and the buttons are enabled again. The register has the new
# image and its old items.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_SetVatRate
paste E_VatRate(1) 15000
click C_Salva
register answer 4097 1
click C_Invia_Ecr
expect-enabled C_Salva no
box critical "Sending to the cash register failed.\nCheck that it is switched on, connected and not busy, then send again." Ok
screen FrmSetVatRate
expect-enabled C_Salva yes
expect-enabled C_Annulla yes
expect-enabled C_Invia_Ecr yes
expect-log "Send_PrgPluToEcr error. Code: 1001 Desc: The ECR side is in the state of BUSY."
expect-same register/PRG_MODE.BIN Dati/PRG_MODE.BIN
expect-same register/PRG_PLU.BIN register/samples/Z320/PRG_PLU.BIN

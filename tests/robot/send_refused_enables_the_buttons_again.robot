# The register is busy: while the box is up the three buttons are disabled, behind it they are enabled. The items are not
# sent, the file stays, and the next send goes through.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_SetVatRate
paste E_VatRate(1) 15000
click C_Salva
register answer 4097 0
forget-calls
click C_Invia_Ecr
expect-enabled C_Salva no
expect-enabled C_Annulla no
expect-enabled C_Invia_Ecr no
box critical "Sending to the cash register failed.\nCheck that it is switched on, connected and not busy, then send again." Ok
screen FrmSetVatRate
expect-enabled C_Salva yes
expect-enabled C_Annulla yes
expect-enabled C_Invia_Ecr yes
expect-log "Send_PrgModeToEcr error. Code: 1001 Desc: The ECR side is in the state of BUSY."
expect-calls 2
expect-bytes register/PRG_MODE.BIN 38 00200200
expect-bytes Dati/PRG_MODE.BIN 38 00500100
register answer 0
click C_Invia_Ecr
screen FrmSetVatRate
expect-same register/PRG_MODE.BIN Dati/PRG_MODE.BIN

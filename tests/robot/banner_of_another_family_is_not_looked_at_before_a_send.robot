# The family is asked for when the main menu opens. Before a send it only counts that the register answers.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_SetVatRate
paste E_VatRate(1) 15000
click C_Salva
register banner "ANOTHER FAMILY 5000 FW rel.2.00"
click C_Invia_Ecr
screen FrmSetVatRate
expect-same register/PRG_MODE.BIN Dati/PRG_MODE.BIN
expect-bytes register/PRG_MODE.BIN 38 00500100
close
close
close
screen FrmPrincipale
expect L_Release_Fw "ANOTHER FAMILY 5000 FW rel.2.00     "

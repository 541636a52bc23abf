# A rate that was typed and not saved is gone when the screen is left, by Back or by the close box, without a question.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_SetVatRate
paste E_VatRate(1) 15000
click C_Annulla
screen FrmProgramMode
expect-same Dati/PRG_MODE.BIN register/PRG_MODE.BIN
click C_SetVatRate
expect E_VatRate(1) "22.000 %"
paste E_VatRate(1) 15000
close
screen FrmProgramMode
click C_SetVatRate
expect E_VatRate(1) "22.000 %"

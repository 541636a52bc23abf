# Going back to the main menu keeps the files; the next way in reads them again, with what was saved in between.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_SetVatRate
paste E_VatRate(1) 15000
click C_Salva
close
close
close
screen FrmPrincipale
expect-bytes Dati/PRG_MODE.BIN 38 00500100
poke Dati/PRG_MODE.BIN 42 00500200
click C_ModificaProgrammazione
box plain * No
click C_ProgramMode
click C_SetVatRate
expect E_VatRate(1) "15.000 %"
expect E_VatRate(2) "25.000 %"

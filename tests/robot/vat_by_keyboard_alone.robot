# The whole screen by keyboard: Tab into each rate, typing, Enter to Save, Enter, and back.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_SetVatRate
expect-focus C_Annulla
key Tab
expect-focus E_VatRate(1)
key Ctrl+a
keys "1000"
key Tab
expect-focus E_VatRate(2)
expect E_VatRate(1) "1 %"
key Ctrl+a
keys "2000"
key Tab
expect-focus E_VatRate(3)
key Ctrl+a
keys "3000"
key Tab
expect-focus E_VatRate(4)
key Ctrl+a
keys "4001"
key Enter
expect-focus C_Salva
keys " "
expect-bytes Dati/PRG_MODE.BIN 38 00100000002000000030000001400000
key Tab
expect-focus C_Invia_Ecr
key Enter
screen FrmSetVatRate
expect-same Dati/PRG_MODE.BIN register/PRG_MODE.BIN
expect-focus C_Invia_Ecr
key Tab
expect-focus C_Annulla
key Enter
screen FrmProgramMode

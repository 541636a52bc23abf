# What was typed and not saved does not go to the register, and stays on the screen.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_SetVatRate
paste E_VatRate(1) 15000
click C_Invia_Ecr
screen FrmSetVatRate
expect E_VatRate(1) "15 %"
expect-bytes register/PRG_MODE.BIN 38 00200200
expect-same register/PRG_MODE.BIN Dati/PRG_MODE.BIN

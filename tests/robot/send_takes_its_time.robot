# Each call takes a moment: the send waits for all four, and the screen is there again behind it with its rates.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_SetVatRate
register delay 0.4
click C_Invia_Ecr
screen FrmSetVatRate
expect-same register/PRG_MODE.BIN Dati/PRG_MODE.BIN
expect E_VatRate(1) "22.000 %"
expect-enabled C_Invia_Ecr yes

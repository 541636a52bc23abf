# What is typed and not saved is not sent.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_PluPageProgram
paste E_PluPage(0) 7
forget-calls
click C_Invia_Ecr
screen FrmPluPageProgram
expect-calls 4
expect-same register/PRG_MODE.BIN Dati/PRG_MODE.BIN
expect-bytes register/PRG_MODE.BIN 70 0100000000000000
expect E_PluPage(0) "7"

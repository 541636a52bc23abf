# No register, and the files of an earlier session: No works on them.
copy register/PRG_MODE.BIN Dati/PRG_MODE.BIN
copy register/PRG_PLU.BIN Dati/PRG_PLU.BIN
poke Dati/PRG_MODE.BIN 38 00500100
register off
start
expect-colour E_ComPort red
click C_Z320
forget-calls
click C_ModificaProgrammazione
box plain * No
screen FrmSetup
expect-calls 0
click C_ProgramMode
click C_SetVatRate
expect E_VatRate(1) "15.000 %"

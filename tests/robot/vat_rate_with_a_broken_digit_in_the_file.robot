# A digit that is none in the register's image: the rate is what was read up to there, and the log tells.
poke register/PRG_MODE.BIN 38 50011A00
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_SetVatRate
expect E_VatRate(1) "0.150 %"
expect-log "bcds_to_number Type mismatch"
expect E_VatRate(2) "10.000 %"

# A digit that is none in a stored price: the price is what was read up to there, the log tells.
poke register/PRG_MODE.BIN 347 501A0000
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_DepartmentProgram
expect E_Price "0.50"
expect-log "bcds_to_number Type mismatch"
expect-cell Fg_Department 1 8 "0.50"
expect-cell Fg_Department 2 8 "0.00"

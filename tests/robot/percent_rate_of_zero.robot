# A rate of 0 shows 0.00 %, empties its field when it is entered, and comes back.
poke register/PRG_MODE.BIN 54 0000
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_PercentageProgram
expect E_P1KeyRate "0.00 %"
focus E_P1KeyRate
expect E_P1KeyRate ""
focus E_P1KeyRateLimit
expect E_P1KeyRate "0.00 %"

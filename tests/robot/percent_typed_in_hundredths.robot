# A rate is typed in hundredths, digits only, and saved so.
poke register/PRG_MODE.BIN 54 0010
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_PercentageProgram
expect-title "Percentage keys"
expect L_RateMax "(Max Value 9999)"
expect L_RateLimitMax "(Max Value 9999)"
focus E_P1KeyRate
expect E_P1KeyRate "1000"
key Ctrl+a
keys "12.x50"
focus E_P2KeyRate
expect E_P1KeyRate "12.50 %"
key Ctrl+a
keys "29"
click C_Salva
expect E_P2KeyRate "0.29 %"
expect-bytes Dati/PRG_MODE.BIN 54 5012
expect-bytes Dati/PRG_MODE.BIN 58 2900

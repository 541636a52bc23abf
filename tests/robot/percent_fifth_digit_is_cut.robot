# A fifth digit that brings a rate above 9999 shows the box and goes away.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_PercentageProgram
focus E_P2KeyRateLimit
key Ctrl+a
keys "9999"
nobox
keys "9"
box critical "The value is too high. The last digit was removed." Ok
expect E_P2KeyRateLimit "9999"
key Enter
expect-focus C_Salva
expect E_P2KeyRateLimit "99.99 %"
key Enter
expect-bytes Dati/PRG_MODE.BIN 60 9999

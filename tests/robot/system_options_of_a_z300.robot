# The system options of a Z300 with the English texts; a save without a change writes the same bytes.
register model Z300
start
expect E_ComPort 4
click C_Z300
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_SystemOption
expect-title "System options"
expect F_ValueDescription "Amounts"
expect F_Counter "Counters"
expect L_Max(0) "(max. 9999999)"
expect L_Max(4) "(max. 9999999999999999)"
expect-items Cmb_FractionRound "0. Round down" "1. Round off" "2. Round up"
click C_Salva
expect-same Dati/PRG_MODE.BIN register/PRG_MODE.BIN

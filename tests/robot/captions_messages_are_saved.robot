# Each of the five messages has its place, its label and its 42 characters.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_MessageSetup

tab Tab_Print 2
expect L_OffModeScrollMessage "OFF mode"
expect L_PrgXZ_ModeScrollMessage "PRG, X and Z mode"
expect L_RegModeSalesScrollMessage "REG mode, sales"
expect L_IdleAMScrollMessage "Idle, morning"
expect L_IdlePMScrollMessage "Idle, afternoon"
expect E_RegModeSalesScrollMessage "BUON APPETITO                             "
focus E_RegModeSalesScrollMessage
expect-cursor E_RegModeSalesScrollMessage 13
keys "!"
paste E_OffModeScrollMessage "one"
paste E_PrgXZ_ModeScrollMessage "two"
paste E_IdleAMScrollMessage "four"
paste E_IdlePMScrollMessage "five"
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 3737 6F6E65202020202020202020202020202020202020202020202020202020202020202020202020202020
expect-bytes Dati/PRG_MODE.BIN 3779 74776F202020202020202020202020202020202020202020202020202020202020202020202020202020
expect-bytes Dati/PRG_MODE.BIN 3821 42554F4E20415050455449544F2120202020202020202020202020202020202020202020202020202020
expect-bytes Dati/PRG_MODE.BIN 3863 666F75722020202020202020202020202020202020202020202020202020202020202020202020202020
expect-bytes Dati/PRG_MODE.BIN 3905 666976652020202020202020202020202020202020202020202020202020202020202020202020202020

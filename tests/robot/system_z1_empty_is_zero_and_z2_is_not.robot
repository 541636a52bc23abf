# An empty Z1 counter is 0; an empty Z2 counter, or grand total, gets the stored value back, and the log tells.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_SystemOption
focus E_Z1CounterSetting
key Ctrl+a
key Delete
focus E_Z2CounterSetting
expect E_Z1CounterSetting "0000"
key Ctrl+a
key Delete
focus E_GTCounterSetting
expect E_Z2CounterSetting "0023"
expect-log "FrmSystemOption E_Z2CounterSetting: Type mismatch"
key Ctrl+a
key Delete
click C_Salva
expect E_GTCounterSetting "0000000163847290"
expect-log "FrmSystemOption E_GTCounterSetting: Type mismatch"
expect-bytes Dati/PRG_MODE.BIN 3125 00002300

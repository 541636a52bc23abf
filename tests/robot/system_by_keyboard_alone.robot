# The system options by keyboard: decimals, counters, and Save.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_SystemOption
screen FrmSystemOption
expect-focus Cmb_DecimalPosition
key Up
expect Cmb_DecimalPosition "1. Tenths (5.0)"
key Tab 4
expect-focus E_ConsecutiveReceipt
expect E_ConsecutiveReceipt "40917"
key Tab 2
expect E_ConsecutiveReceipt "0040917"
expect-focus E_Z1CounterSetting
key Ctrl+a
keys "703"
key Tab 3
expect E_Z1CounterSetting "0703"
expect-focus C_Salva
key Enter
expect-bytes Dati/PRG_MODE.BIN 67 01
expect-bytes Dati/PRG_MODE.BIN 3125 0307

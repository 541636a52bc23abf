# The lists of the setting screens change by the pointer and the arrow keys; typed characters do nothing.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_SettingMode
click C_Report_Setup
focus Cmb_ConsecutiveReset
keys "1"
expect Cmb_ConsecutiveReset "0. No"
key Down
expect Cmb_ConsecutiveReset "1. Yes"
key Up
expect Cmb_ConsecutiveReset "0. No"

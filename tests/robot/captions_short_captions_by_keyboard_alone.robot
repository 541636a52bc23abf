# From row to field to Apply with Enter, on to the next row with the arrow key.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_MessageSetup

expect-focus Tab_Print
key Right
expect-tab Tab_Print 1
key Tab
expect-focus FG_Caption
expect E_Valore "TOTAL     "
key Down 2
expect E_Valore "CASH      "
key Enter
expect-focus E_Valore
expect-cursor E_Valore 4
keys " IN"
key Enter
expect-focus C_Apply
key Enter
expect-cell FG_Caption 3 1 "CASH IN   "
expect-focus FG_Caption
key Enter
expect-focus E_Valore
expect-enabled C_Cancel yes
key Enter
key Enter
expect-focus FG_Caption
key Down
expect E_Valore "CHEQUE    "
key Tab
keys "S"
key Tab
expect-focus ChK_Double2
key Tab
key Tab
expect-focus C_Cancel
key Enter
expect-cell FG_Caption 4 1 "CHEQUE    "

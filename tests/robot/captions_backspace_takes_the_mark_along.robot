# Deleting a double-width character with backspace leaves no stray mark.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_MessageSetup

focus E_ReceiptHeader(0)
expect E_ReceiptHeader(0) "·D·E·L·I & ·C·A·F·É"
expect-cursor E_ReceiptHeader(0) 19
key Backspace
expect E_ReceiptHeader(0) "·D·E·L·I & ·C·A·F"
expect-cursor E_ReceiptHeader(0) 17
key Backspace
expect E_ReceiptHeader(0) "·D·E·L·I & ·C·A"
expect-cursor E_ReceiptHeader(0) 15
key Backspace 2
expect E_ReceiptHeader(0) "·D·E·L·I & "
expect-cursor E_ReceiptHeader(0) 11
key Backspace
expect E_ReceiptHeader(0) "·D·E·L·I &"
key Backspace 2
expect E_ReceiptHeader(0) "·D·E·L·I"
key Left 4
expect-cursor E_ReceiptHeader(0) 4
key Backspace
expect E_ReceiptHeader(0) "·D·L·I"
expect-cursor E_ReceiptHeader(0) 2
key Backspace
expect E_ReceiptHeader(0) "·L·I"
expect-cursor E_ReceiptHeader(0) 0
key Backspace
expect E_ReceiptHeader(0) "·L·I"
key End
key Backspace 3
expect E_ReceiptHeader(0) ""
expect T_Hraw1 "                        "

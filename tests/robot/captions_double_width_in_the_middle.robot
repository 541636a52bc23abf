# The mark comes where the cursor stands, not at the end of the line.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_MessageSetup

check Chk_Double on
focus E_ReceiptHeader(3)
expect E_ReceiptHeader(3) "New Town"
expect-cursor E_ReceiptHeader(3) 8
key Home
keys "x"
expect E_ReceiptHeader(3) "·xNew Town"
expect-cursor E_ReceiptHeader(3) 2
key Right 3
keys "y"
expect E_ReceiptHeader(3) "·xNew·y Town"
expect-cursor E_ReceiptHeader(3) 7
key Left 2
expect-cursor E_ReceiptHeader(3) 5
key Shift+Right 2
keys "z"
expect E_ReceiptHeader(3) "·xNew·z·y Town"
expect-cursor E_ReceiptHeader(3) 7

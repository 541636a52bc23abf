# Entering a line trims its end and puts the cursor there; leaving it fills it to 24 characters.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_MessageSetup

expect E_ReceiptHeader(1) "Cheese, wine, lunch     "
focus E_ReceiptHeader(1)
expect E_ReceiptHeader(1) "Cheese, wine, lunch"
expect-cursor E_ReceiptHeader(1) 19
key Tab
expect-focus E_ReceiptHeader(2)
expect E_ReceiptHeader(1) "Cheese, wine, lunch     "
expect E_ReceiptHeader(2) "4 Market Square"
expect-cursor E_ReceiptHeader(2) 15
paste E_ReceiptHeader(2) "  two in front"
focus C_Salva
expect E_ReceiptHeader(2) "  two in front          "
focus E_ReceiptHeader(2)
expect E_ReceiptHeader(2) "  two in front"

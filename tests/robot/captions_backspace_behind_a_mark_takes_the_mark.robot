# Between a mark and its character backspace takes the mark alone; over a selection the mark in front goes too.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_MessageSetup

tab Tab_Invoice 1
paste E_ReceiptFooter(0) "a·b·c"
key Left
expect-cursor E_ReceiptFooter(0) 4
key Backspace
expect E_ReceiptFooter(0) "a·bc"
expect-cursor E_ReceiptFooter(0) 3
key Shift+Left
key Backspace
expect E_ReceiptFooter(0) "ac"
expect-cursor E_ReceiptFooter(0) 1

# Footer, invoice and other lines have the same keys as the header.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_MessageSetup

check Chk_Double on
tab Tab_Invoice 1
paste E_ReceiptFooter(9) ""
keys "ab"
expect E_ReceiptFooter(9) "·a·b"
expect-cursor E_ReceiptFooter(9) 4
key Backspace
expect E_ReceiptFooter(9) "·a"
tab Tab_Invoice 2
paste E_ExtraInvoice(4) ""
keys "cd"
expect E_ExtraInvoice(4) "·c·d"
expect-cursor E_ExtraInvoice(4) 4
key Backspace 2
expect E_ExtraInvoice(4) ""
tab Tab_Invoice 3
paste E_Other(22) ""
keys "ef"
expect E_Other(22) "·e·f"
expect-cursor E_Other(22) 4
key Backspace
expect E_Other(22) "·e"
expect T_Other23 "ee                      "

# A line takes more than 24 characters while it is written; what is beyond goes when the line is left.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_MessageSetup

focus E_ReceiptHeader(9)
keys "1234567890123456789012345678"
expect E_ReceiptHeader(9) "1234567890123456789012345678"
expect-cursor E_ReceiptHeader(9) 28
expect T_Hraw10 "123456789012345678901234"
key Backspace 5
key End
keys "!"
focus Chk_Double
expect E_ReceiptHeader(9) "12345678901234567890123!"

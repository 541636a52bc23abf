# With double width on, arrows, Enter, Escape and commands put no mark.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_MessageSetup

check Chk_Double on
focus E_ReceiptHeader(3)
key Left 3
key Home
key End
key Enter
key Escape
key Ctrl+c
key Shift+Left
key Right
expect E_ReceiptHeader(3) "New Town"
expect-cursor E_ReceiptHeader(3) 8

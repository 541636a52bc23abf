# Tab goes from line to line, Ctrl+D switches double width without leaving the line.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_MessageSetup
screen FrmCaptionSetting

key Tab
expect-focus Chk_Double
key Tab
expect-focus Tab_Invoice
key Tab
expect-focus E_ReceiptHeader(0)
key Tab 5
expect-focus E_ReceiptHeader(5)
key Tab
keys "A"
key Ctrl+d
expect-checked Chk_Double on
expect-focus E_ReceiptHeader(6)
keys "B"
key Ctrl+d
keys "C"
expect E_ReceiptHeader(6) "A·BC"
key Tab 4
expect-focus C_Salva
key Enter
expect-bytes Dati/PRG_MODE.BIN 3401 41FF42432020202020202020202020202020202020202020
key Tab 2
expect-focus C_Annulla
key Enter
screen FrmSetup

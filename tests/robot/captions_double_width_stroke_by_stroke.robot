# Double width: each typed character gets its mark in front, the cursor stands behind both.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_MessageSetup

check Chk_Double on
focus E_ReceiptHeader(6)
expect E_ReceiptHeader(6) ""
expect-cursor E_ReceiptHeader(6) 0
keys "O"
expect E_ReceiptHeader(6) "·O"
expect-cursor E_ReceiptHeader(6) 2
keys "v"
expect E_ReceiptHeader(6) "·O·v"
expect-cursor E_ReceiptHeader(6) 4
keys " "
expect E_ReceiptHeader(6) "·O·v· "
expect-cursor E_ReceiptHeader(6) 6
keys "é"
expect E_ReceiptHeader(6) "·O·v· ·é"
expect-cursor E_ReceiptHeader(6) 8
expect T_Hraw7 "OOvv  éé                "
check Chk_Double off
focus E_ReceiptHeader(6)
expect-cursor E_ReceiptHeader(6) 8
keys "n"
expect E_ReceiptHeader(6) "·O·v· ·én"
expect-cursor E_ReceiptHeader(6) 9
expect T_Hraw7 "OOvv  één               "
click C_Salva
expect E_ReceiptHeader(6) "·O·v· ·én               "
expect-bytes Dati/PRG_MODE.BIN 3401 FF4FFF76FF20FFF06E202020202020202020202020202020

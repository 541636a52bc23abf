# A line of 24 characters: marks push its last characters out, the cut comes on leaving, at 24 places and not at 24 cells.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_MessageSetup

paste E_ReceiptHeader(1) "123456789012345678901234"
check Chk_Double on
expect E_ReceiptHeader(1) "123456789012345678901234"
focus E_ReceiptHeader(1)
key Home
keys "AB"
expect E_ReceiptHeader(1) "·A·B123456789012345678901234"
expect-cursor E_ReceiptHeader(1) 4
expect T_Hraw2 "AABB12345678901234567890"
key Tab
expect E_ReceiptHeader(1) "·A·B12345678901234567890"
expect T_Hraw2 "AABB12345678901234567890"
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 3281 FF41FF423132333435363738393031323334353637383930
expect-bytes Dati/PRG_MODE.BIN 3305 34204D61726B657420537175617265202020202020202020

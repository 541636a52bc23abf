# A letter of two bytes that the register lacks stops the program before anything is written.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_MessageSetup

paste E_ReceiptHeader(1) "Olé Ã"
click C_Salva
expect-ended
expect-same Dati/PRG_MODE.BIN register/PRG_MODE.BIN

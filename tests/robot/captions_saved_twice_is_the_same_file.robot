# A save without a change keeps every byte of the file.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_MessageSetup

click C_Salva
expect-same Dati/PRG_MODE.BIN register/PRG_MODE.BIN
click C_Annulla
click C_MessageSetup
focus E_ReceiptHeader(0)
focus E_ReceiptHeader(1)
click C_Salva
expect-same Dati/PRG_MODE.BIN register/PRG_MODE.BIN

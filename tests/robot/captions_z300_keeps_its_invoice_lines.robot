# A save on a Z300 leaves the invoice lines of the file as they are, whatever the screen shows.
register model Z300
start
expect E_ComPort 4
click C_Z300
click C_ModificaProgrammazione
box plain * Yes
click C_MessageSetup

expect-bytes Dati/PRG_MODE.BIN 4115 437573746F6D65723A202020202020202020202020202020
tab Tab_Invoice 2
expect-visible E_ExtraInvoice(0) yes
expect-enabled E_ExtraInvoice(0) yes
expect-visible L_NoZ300 yes
paste E_ExtraInvoice(0) "Guest:"
paste E_ExtraInvoice(4) "Thank you"
tab Tab_Invoice 0
paste E_ReceiptHeader(1) "Bread"
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 4115 437573746F6D65723A202020202020202020202020202020
expect-bytes Dati/PRG_MODE.BIN 4211 5369676E61747572653A2020202020202020202020202020
expect-bytes Dati/PRG_MODE.BIN 3281 427265616420202020202020202020202020202020202020
click C_Annulla
click C_MessageSetup
expect E_ExtraInvoice(0) "Customer:               "

# On a Z320 the invoice lines are saved.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_MessageSetup

tab Tab_Invoice 2
expect-visible L_NoZ300 no
expect E_ExtraInvoice(0) "Guest:                  "
paste E_ExtraInvoice(0) "Customer:"
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 4115 437573746F6D65723A202020202020202020202020202020

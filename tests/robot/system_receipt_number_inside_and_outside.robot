# A receipt number of 12 shows 0000012, inside its field 12, and 0000012 again.
poke register/PRG_MODE.BIN 3117 12000000
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_SystemOption
expect E_ConsecutiveReceipt "0000012"
expect-maxlength E_ConsecutiveReceipt 7
focus E_ConsecutiveReceipt
expect E_ConsecutiveReceipt "12"
focus E_InvoiceNumber
expect E_ConsecutiveReceipt "0000012"
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 3117 12000000

# The first and the last line of each group go to their own places in the file, and come back.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_MessageSetup
tab Tab_Invoice 0
paste E_ReceiptHeader(0) "ReceiptHeader 1"
expect T_Hraw1 "ReceiptHeader 1         "
paste E_ReceiptHeader(9) "ReceiptHeader 10"
expect T_Hraw10 "ReceiptHeader 10        "
tab Tab_Invoice 1
paste E_ReceiptFooter(0) "ReceiptFooter 1"
expect T_Fraw1 "ReceiptFooter 1         "
paste E_ReceiptFooter(9) "ReceiptFooter 10"
expect T_Fraw10 "ReceiptFooter 10        "
tab Tab_Invoice 2
paste E_ExtraInvoice(0) "ExtraInvoice 1"
expect T_Eraw1 "ExtraInvoice 1          "
paste E_ExtraInvoice(4) "ExtraInvoice 5"
expect T_Eraw5 "ExtraInvoice 5          "
tab Tab_Invoice 3
paste E_Other(0) "Other 1"
expect T_Other1 "Other 1                 "
paste E_Other(22) "Other 23"
expect T_Other23 "Other 23                "
tab Tab_Invoice 4
paste E_Abr(0) "Abr 1"
expect T_Abr1 "Abr 1                   "
paste E_Abr(6) "Abr 7"
expect T_Abr7 "Abr 7                   "
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 3257 526563656970744865616465722031202020202020202020
expect-bytes Dati/PRG_MODE.BIN 3473 526563656970744865616465722031302020202020202020
expect-bytes Dati/PRG_MODE.BIN 3497 52656365697074466F6F7465722031202020202020202020
expect-bytes Dati/PRG_MODE.BIN 3713 52656365697074466F6F7465722031302020202020202020
expect-bytes Dati/PRG_MODE.BIN 4115 4578747261496E766F696365203120202020202020202020
expect-bytes Dati/PRG_MODE.BIN 4211 4578747261496E766F696365203520202020202020202020
expect-bytes Dati/PRG_MODE.BIN 5015 4F7468657220312020202020202020202020202020202020
expect-bytes Dati/PRG_MODE.BIN 5543 4F7468657220323320202020202020202020202020202020
expect-bytes Dati/PRG_MODE.BIN 3947 416272203120202020202020202020202020202020202020
expect-bytes Dati/PRG_MODE.BIN 4091 416272203720202020202020202020202020202020202020
expect-bytes Dati/PRG_MODE.BIN 3281 4368656573652C2077696E652C206C756E63682020202020
expect-file Dati/PRG_MODE.BIN size 5656
click C_Annulla
screen FrmSetup
click C_MessageSetup
expect E_ReceiptHeader(0) "ReceiptHeader 1         "

# Back drops what was typed and not saved; the close box does the same.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_MessageSetup

paste E_ReceiptHeader(1) "not kept"
click C_Annulla
screen FrmSetup
expect-same Dati/PRG_MODE.BIN register/PRG_MODE.BIN
click C_MessageSetup
expect E_ReceiptHeader(1) "Cheese, wine, lunch     "
paste E_ReceiptHeader(1) "not kept"
close
screen FrmSetup
expect-same Dati/PRG_MODE.BIN register/PRG_MODE.BIN

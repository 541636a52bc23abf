# What was saved goes to the register, what was only typed does not.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_MessageSetup

paste E_ReceiptHeader(1) "Lunch all day"
click C_Salva
paste E_ReceiptHeader(2) "not saved"
click C_Invia_Ecr
screen FrmCaptionSetting
expect-bytes register/PRG_MODE.BIN 3281 4C756E636820616C6C206461792020202020202020202020
expect-bytes register/PRG_MODE.BIN 3305 34204D61726B657420537175617265202020202020202020
expect-enabled C_Salva yes
expect-enabled C_Invia_Ecr yes
expect-enabled C_Annulla yes

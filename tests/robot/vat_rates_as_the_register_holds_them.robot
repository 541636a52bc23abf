# The four rates of a Z320 with three decimals and a percent sign, and the screen's English texts. Nothing is changed by
# opening it.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_SetVatRate
screen FrmSetVatRate
expect-title "VAT rates"
expect L_Titolo "VAT rates"
expect L_VatRate(1) "VAT rate 1"
expect L_VatRate(2) "VAT rate 2"
expect L_VatRate(3) "VAT rate 3"
expect L_VatRate(4) "VAT rate 4"
expect L_MaxValue(1) "(1000 = 1 %, max. 99999)"
expect L_MaxValue(2) "(1000 = 1 %, max. 99999)"
expect L_MaxValue(3) "(1000 = 1 %, max. 99999)"
expect L_MaxValue(4) "(1000 = 1 %, max. 99999)"
expect E_VatRate(1) "22.000 %"
expect E_VatRate(2) "10.000 %"
expect E_VatRate(3) "5.000 %"
expect E_VatRate(4) "4.000 %"
expect C_Salva "Save"
expect C_Annulla "Back"
expect C_Invia_Ecr "Send to register"
expect-focus C_Annulla
expect-same Dati/PRG_MODE.BIN register/PRG_MODE.BIN

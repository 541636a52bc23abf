# The operating mode has seven lists on the Z320; each choice saves its bit or byte.
poke register/PRG_MODE.BIN 0 0001010001010001000040E8010601070FA0C02100
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_SettingMode
click C_Working_Mode
screen FrmWorkingMode
expect-title "Operating mode"
expect-items Cmb_VatCalculation "0. VAT" "1. Add-on tax"
expect-items Cmb_FC_ConvertCalculation "0. Divide" "1. Multiply"
expect-items Cmb_PM_Per_Result "0. Enabled" "1. Disabled"
expect-items Cmb_ZeroPriceRegistration "0. Yes" "1. No"
expect-items Cmb_PostTender "0. Enabled" "1. Disabled"
expect-items Cmb_PluPageSelection "0. Each entry" "1. End of transaction" "2. Stays down"
expect-items Cmb_Price1_2ShiftSel "0. Each entry" "1. End of transaction" "2. Stays down"
expect Cmb_ZeroPriceRegistration "1. No"
choose Cmb_VatCalculation #1
choose Cmb_Price1_2ShiftSel #2
choose Cmb_PluPageSelection #0
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 0 00020001
choose Cmb_FC_ConvertCalculation #1
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 10 40EA
choose Cmb_PM_Per_Result #1
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 10 40EB
choose Cmb_ZeroPriceRegistration #0
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 10 00EB
choose Cmb_PostTender #1
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 10 20EB

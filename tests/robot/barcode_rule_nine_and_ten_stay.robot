# Saving walks through the rules up to number 9 and stays there; rule 10, once chosen, stays too.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_InstoreBarcodeSetting
choose Cmb_InstoreBarcodeSettingNumber "8"
click C_Salva
expect Cmb_InstoreBarcodeSettingNumber "9"
click C_Salva
expect Cmb_InstoreBarcodeSettingNumber "9"
choose Cmb_InstoreBarcodeSettingNumber "10"
click C_Salva
expect Cmb_InstoreBarcodeSettingNumber "10"
expect-same Dati/PRG_MODE.BIN register/PRG_MODE.BIN

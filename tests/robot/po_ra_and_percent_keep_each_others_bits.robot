# The percentage keys and the PO, RA and plus-minus keys share a byte and leave each other's bits alone.
poke register/PRG_MODE.BIN 66 C3
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_PO_RA_M_P_Key_Program
expect-items Cmb_PM1Sign "0. Discount" "1. Add-on"
choose Cmb_PM1Sign "1. Add-on"
choose Cmb_PM2Sign "0. Discount"
choose Cmb_RAHeaderPrint "1. Do not print"
choose Cmb_POHeaderPrint "0. Print"
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 66 D7
click C_Annulla
click C_PercentageProgram
choose Cmb_P1Sign "0.Add-on"
choose Cmb_P2Sign "0.Discount"
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 66 D4

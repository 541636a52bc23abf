# A VAT calculation of 2 shows an empty list, and a save stores 0.
poke register/PRG_MODE.BIN 3 02
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_SettingMode
click C_Working_Mode
expect Cmb_VatCalculation ""
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 3 00

# A rounding code of 4 shows an empty row, and a save stores 0.
poke register/PRG_MODE.BIN 4 04
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_SettingMode
click C_Initial_Setup
expect Cmb_EuRoundigSel ""
expect-count Cmb_EuRoundigSel 6
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 4 00

# With the catalogue a clear bit reads add-on for key %1 and discount for key %2, and a save leaves both.
poke register/PRG_MODE.BIN 66 3C
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_PercentageProgram
screen FrmPercentageMenu
expect-items Cmb_P1Sign "0.Add-on" "1.Discount"
expect-items Cmb_P2Sign "0.Discount" "1.Add-on"
expect Cmb_P1Sign "0.Add-on"
expect Cmb_P2Sign "0.Discount"
click C_Salva
expect-same Dati/PRG_MODE.BIN register/PRG_MODE.BIN

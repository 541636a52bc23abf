# A card by keyboard: over the frames to the tabs, an arrow to the next tab, and into its fields.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_TenderProgram
expect-focus E_Name(0)
key Tab 15
expect-focus Tab_Credit
key Right
expect-tab Tab_Credit 1 "Card 2"
key Tab
expect-focus E_Name(4)
keys "Blue"
key Tab
key Down
expect Cmb_Halo(4) "1. Up to 0.99"
key Tab 4
expect-focus C_Salva
key Enter
expect-bytes Dati/PRG_MODE.BIN 3047 426C7565202020202020202001

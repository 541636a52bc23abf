# A clerk from the number to the save by keyboard: Tab from field to field, arrows in the lists.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_ClerkSystemProgram
screen FrmClerkSystemProgram
expect-focus Cmb_ClerkNumber
key Down
expect E_Name "Marc"
keys "9"
expect Cmb_ClerkNumber "2"
key Tab
expect-focus E_Name
keys "Ada"
key Tab
expect-focus E_Password
key Ctrl+a
keys "5"
key Tab
expect-focus Cmb_Mode
expect E_Password "005"
key Down
expect Cmb_Mode "1. Training"
key Tab
expect-focus Cmb_Void
key Down
key Tab 7
expect-focus C_Salva
key Enter
expect Cmb_ClerkNumber "3"
expect-bytes Dati/PRG_MODE.BIN 2535 416461202020202020202020202020202020202020202020
expect-bytes Dati/PRG_MODE.BIN 2559 81000500

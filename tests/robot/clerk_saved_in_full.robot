# A clerk with name, password and rights, saved: its record and no other byte changes.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_ClerkSystemProgram
expect-title "Clerks"
expect-count Fg_Clerk 16
expect E_Name "Giulia"
expect-maxlength E_Name 24
row Fg_Clerk 2
type E_Name "Zoë"
focus E_Password
key Ctrl+a
keys "123"
choose Cmb_Void "1. Disabled"
choose Cmb_PaidOut "1. Disabled"
choose Cmb_Mode "1. Training"
click C_Salva
expect Cmb_ClerkNumber "3"
expect-bytes Dati/PRG_MODE.BIN 2535 5A6FF220202020202020202020202020202020202020202089002301
expect-cell Fg_Clerk 2 1 "Zoë"
expect-cell Fg_Clerk 2 3 "Disabled"
expect-cell Fg_Clerk 2 8 "Disabled"
expect-cell Fg_Clerk 2 10 "Training"

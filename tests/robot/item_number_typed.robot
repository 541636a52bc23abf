# A typed number loads with each digit; above 3000 it becomes 3000.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_PluProgram
focus Cmb_PluNumber
keys "12"
expect E_FreeCode "12"
expect-cell Fg_Plu 3000 0 "3000"
keys "00"
expect Cmb_PluNumber "1200"
expect E_FreeCode "0"
keys "0"
expect Cmb_PluNumber "3000"
expect-count Cmb_PluNumber 3000
expect-count Fg_Plu 3001

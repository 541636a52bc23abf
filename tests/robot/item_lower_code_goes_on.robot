# A code that becomes lower moves its item up, and the number goes on.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_PluProgram
row Fg_Plu 17
expect E_FreeCode "31"
paste E_FreeCode 20
click C_Salva
expect Cmb_PluNumber 18
expect-cell Fg_Plu 17 1 "20"
row Fg_Plu 23
expect E_FreeCode "51"
paste E_FreeCode 21
click C_Salva
expect Cmb_PluNumber 24
expect-cell Fg_Plu 18 1 "21"
expect-cell Fg_Plu 19 1 "32"
expect-cell Fg_Plu 23 1 "36"

# A code that becomes higher moves its item down: the number stays and shows the item that was the next one.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_PluProgram
row Fg_Plu 17
paste E_FreeCode 40
click C_Salva
expect Cmb_PluNumber 17
expect E_FreeCode "32"
expect-cell Fg_Plu 21 1 "36"
expect-cell Fg_Plu 22 1 "40"

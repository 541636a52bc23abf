# Which number follows a save is told by comparing the codes as texts: 16 that becomes 5000 stays, 31 that becomes 100
# goes on, and so does 32 that becomes 4 stay.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_PluProgram
row Fg_Plu 16
paste E_FreeCode 5000
click C_Salva
expect Cmb_PluNumber 16
expect E_FreeCode "31"
paste E_FreeCode 100
click C_Salva
expect Cmb_PluNumber 17
expect-cell Fg_Plu 16 1 "32"
row Fg_Plu 16
paste E_FreeCode 4
click C_Salva
expect Cmb_PluNumber 16
expect-cell Fg_Plu 4 1 "4"
expect-cell Fg_Plu 5 1 "4"
expect-cell Fg_Plu 5 2 "Müsli & yoghurt "

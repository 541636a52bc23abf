# Two items of one code are not refused: they stand next to each other.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_PluProgram
row Fg_Plu 17
paste E_FreeCode 12
click C_Salva
nobox
expect-cell Fg_Plu 12 2 "Panino prosciut."
expect-cell Fg_Plu 13 1 "12"
expect-cell Fg_Plu 13 2 "Croissant       "

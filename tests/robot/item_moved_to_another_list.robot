# An item that moves from list 1 to list 2 frees its entry and takes the first free one, with its new code.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_PluProgram
row Fg_Plu 2
choose Cmb_PluListLink "2"
paste E_FreeCode 18
click C_Salva
expect-bytes Dati/PRG_PLU.BIN 10 0000000000000000
expect-bytes Dati/PRG_PLU.BIN 226 1800000000000000
expect-cell Fg_Plu 16 1 "18"
click C_Annulla
click C_PopUpPluList
expect E_Plu1(2) "0"
expect E_Plu2(9) "18"

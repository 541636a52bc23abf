# A save sorts from the row above it on: what is out of order further up stays.
poke register/PRG_PLU.BIN 802 99
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_PluProgram
row Fg_Plu 20
click C_Salva
expect-cell Fg_Plu 1 1 "99"
expect-cell Fg_Plu 2 1 "2"
row Fg_Plu 1
click C_Salva
expect-cell Fg_Plu 1 1 "2"

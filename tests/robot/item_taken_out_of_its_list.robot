# List 0 takes the item out of its list.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_PluProgram
row Fg_Plu 3
choose Cmb_PluListLink "0"
click C_Salva
expect-bytes Dati/PRG_PLU.BIN 18 0000000000000000
expect-bytes Dati/PRG_PLU.BIN 926 00
row Fg_Plu 3
expect Cmb_PluListLink "0"

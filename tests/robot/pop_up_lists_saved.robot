# The five lists on their tabs: each entry is saved at its place, in any order, and a code may stand twice and need no item.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_PopUpPluList
expect-count Tab_PopUpPluList 5
expect-tab Tab_PopUpPluList 0
expect E_Plu1(1) "1"
expect E_Plu1(5) "0"
expect E_Plu1(6) "5"
expect E_Plu5(10) "140"
paste E_Plu1(20) 4711
tab Tab_PopUpPluList 4
paste E_Plu5(20) 4711
tab Tab_PopUpPluList 2
paste E_Plu3(1) 0
click C_Salva
expect-tab Tab_PopUpPluList 2
expect-bytes Dati/PRG_PLU.BIN 154 1147000000000000
expect-bytes Dati/PRG_PLU.BIN 794 1147000000000000
expect-bytes Dati/PRG_PLU.BIN 322 0000000000000000
copy Dati/PRG_PLU.BIN saved.bin
poke saved.bin 154 0000000000000000
poke saved.bin 794 0000000000000000
poke saved.bin 322 0101000000000000
expect-same saved.bin register/PRG_PLU.BIN

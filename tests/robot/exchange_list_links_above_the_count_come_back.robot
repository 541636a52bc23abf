# Pop-up lists of rows above the count are kept by the program, and come back with a longer import.
write two.csv "h\r\n;A;1;1;\r\n;B;2;1;\r\n"
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_PluProgram
click C_Export
file items.csv
screen FrmPrgPlu
click C_Import
file two.csv
screen FrmPrgPlu
click C_Invia_Ecr
screen FrmPrgPlu
expect-file Dati/PRG_PLU.BIN size 890
expect-file register/PRG_PLU.BIN size 6170
click C_Invia_Ecr
screen FrmPrgPlu
expect-file register/PRG_PLU.BIN size 890
click C_Annulla
click C_Exit
click C_Exit
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_PluProgram
expect-cell Fg_Plu 4 1 "0"
click C_Import
file items.csv
screen FrmPrgPlu
row Fg_Plu 4
expect E_FreeCode "4"
expect Cmb_PluListLink "1"

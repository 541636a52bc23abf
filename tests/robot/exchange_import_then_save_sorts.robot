# Imported lines stand as they come; the next save sorts them and writes the file.
write items.csv "h\r\n1;Tea;70;5;250;0;2;1;4;12.5;\r\n2;Milk;60;6;90;80;1;1;1;0;\r\n3;Rum;65;6;90;80;1;1;1;0;\r\n"
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_PluProgram
click C_Import
file items.csv
screen FrmPrgPlu
expect Cmb_PluNumber 1
expect E_Name "Tea             "
expect E_FreeCode "70"
expect-cell Fg_Plu 1 1 "70"
expect-cell Fg_Plu 2 1 "60"
expect-cell Fg_Plu 3 1 "65"
expect-cell Fg_Plu 4 1 "4"
expect-same Dati/PRG_PLU.BIN register/PRG_PLU.BIN
click C_Salva
expect-cell Fg_Plu 1 1 "4"
expect-bytes Dati/PRG_PLU.BIN 0 7A00

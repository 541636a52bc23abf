# Prices in the file are whole numbers of the smallest unit: decimals are rounded, halves away from zero.
write items.csv "h\r\n;A;1;1;1.5;2.5;\r\n;B;2;1;1249.4;0;\r\n"
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
expect-cell Fg_Plu 1 7 "0.02"
expect-cell Fg_Plu 1 8 "0.03"
expect-cell Fg_Plu 2 7 "12.49"

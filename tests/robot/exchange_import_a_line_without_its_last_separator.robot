# A line without the separator at its end keeps the stock that was there.
write items.csv "h\r\n;A;\r\n;A;\r\n;A;\r\n;A;\r\n;A;\r\n;A;\r\n;A;\r\n;A;\r\n;A;\r\n;J;10;1;1;1;1;1;1;7.5;\r\n;K;11;1;1;1;1;1;1;7.5\r\n"
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_PluProgram
row Fg_Plu 11
expect E_StockCount "12"
row Fg_Plu 1
click C_Import
file items.csv
screen FrmPrgPlu
expect-cell Fg_Plu 11 2 "K               "
expect-cell Fg_Plu 11 9 "12"
expect-cell Fg_Plu 10 9 "7.5"

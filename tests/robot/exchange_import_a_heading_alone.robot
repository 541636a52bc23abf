# A file of only the heading sets the count to 0 and leaves the grid and the screen.
write items.csv "Number;Name\r\n"
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_PluProgram
row Fg_Plu 2
click C_Import
file items.csv
screen FrmPrgPlu
expect Cmb_PluNumber 2
expect E_Name "Cappuccino      "
expect-cell Fg_Plu 122 1 "2910200000770"
row Fg_Plu 3
click C_Salva
expect-bytes Dati/PRG_PLU.BIN 0 7A00

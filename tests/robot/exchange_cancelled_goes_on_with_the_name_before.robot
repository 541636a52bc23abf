# A cancelled chooser leaves the name as it is, and the routine goes on with it.
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
delete items.csv
click C_Export
file cancel
screen FrmPrgPlu
expect-lines items.csv 123
write items.csv "h\r\n;Tea;1;\r\n"
click C_Import
file cancel
screen FrmPrgPlu
expect E_Name "Tea             "

# An empty file sets the count to -1: a send brings it to the file, a save sets it right.
write items.csv ""
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
click C_Invia_Ecr
screen FrmPrgPlu
expect-bytes Dati/PRG_PLU.BIN 0 FFFF
expect-file Dati/PRG_PLU.BIN size 802
click C_Salva
expect-bytes Dati/PRG_PLU.BIN 0 7A00
expect-file Dati/PRG_PLU.BIN size 6170

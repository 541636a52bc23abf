# An export and an import in the same state leave all that is exchanged as it was; the import itself writes no file.
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
expect-chooser "Percorso Immagine" "File CSV(*.csv)|*.csv"
file items.csv
screen FrmPrgPlu
nobox
expect-same Dati/PRG_PLU.BIN register/PRG_PLU.BIN
expect Cmb_PluNumber 1
expect-cell Fg_Plu 16 7 "13.50"
row Fg_Plu 11
click C_Salva
click C_Export
file again.csv
screen FrmPrgPlu
expect-line again.csv 2 "1;Espresso        ;1;1;160;130;2;2;2;0;"
expect-bytes Dati/PRG_PLU.BIN 1242 110000000000000050616E696E6F20636170726573652020E206020320060000400500000001000012000000

# A row beyond the 3001st stops the import: the log tells, what was read stays, the count and the grid do not change.
copy script/data/items_3002.csv many.csv
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_PluProgram
click C_Import
file many.csv
screen FrmPrgPlu
nobox
expect-log "Frm_PrgPlu_Import Index out of range"
expect-cell Fg_Plu 2 1 "2"
expect-cell Fg_Plu 2 2 "Cappuccino      "
row Fg_Plu 2
expect E_Name "X               "

# A file that is not there: no message, nothing changes.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_PluProgram
click C_Import
file nothere.csv
screen FrmPrgPlu
nobox
expect-same Dati/PRG_PLU.BIN register/PRG_PLU.BIN
expect-cell Fg_Plu 1 2 "Espresso        "

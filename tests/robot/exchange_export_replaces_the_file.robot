# An older file of the name is gone without a question.
fill items.csv 0 50000 41
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
nobox
expect-lines items.csv 123

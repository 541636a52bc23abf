# Without texts the heading is nine bare separators.
write Setup/FrmDescEng.txt ""
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
expect-line items.csv 1 ";;;;;;;;;"
expect-line items.csv 2 "1;Espresso        ;1;1;160;130;2;2;2;0;"

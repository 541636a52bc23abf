# The export: a heading of ten texts, and a line for each item with a separator behind every field.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_PluProgram
click C_Export
expect-chooser "Percorso Immagine" "File CSV(*.csv)|*.csv"
file items.csv
screen FrmPrgPlu
expect-lines items.csv 123
expect-line items.csv 1 "Number;PLU name;PLU code;Department;Price 1;Price 2;Type;Tax;Take-out tax;Stock count"
expect-line items.csv 2 "1;Espresso        ;1;1;160;130;2;2;2;0;"
expect-line items.csv 5 "4;Café crème      ;4;1;280;240;2;2;2;0;"
expect-line items.csv 123 "122;Turrón de yema  ;2910200000770;14;760;0;2;2;2;16;"

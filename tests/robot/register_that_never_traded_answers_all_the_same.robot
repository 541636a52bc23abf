# Without anything counted the port is still found: the hours come, and are all zero.
delete register/TOTALS.BIN
start
expect E_ComPort 4
expect-file Dati/TIME.bin size 240
copy Dati/TIME.bin zero.bin
fill zero.bin 0 240 00
expect-same Dati/TIME.bin zero.bin

# A fresh emulated register has a day of sales behind it: the port test brings the hours of that day, and its stock and
# counters stand as the samples say.
start
expect E_ComPort 4
expect-file Dati/TIME.bin size 240
# Hour 3: closed. Hour 12: open.
expect-bytes Dati/TIME.bin 30 00000000000000000000
copy Dati/TIME.bin closed.bin
fill closed.bin 0 240 00
expect-different Dati/TIME.bin closed.bin
expect-file register/TOTALS.BIN exists
expect-same register/TOTALS.BIN register/samples/Z320/TOTALS.BIN
expect-same register/PRG_MODE.BIN register/samples/Z320/PRG_MODE.BIN
expect-same register/PRG_PLU.BIN register/samples/Z320/PRG_PLU.BIN
# It goes on only when it is told to.
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
screen FrmSetup
expect-same register/TOTALS.BIN register/samples/Z320/TOTALS.BIN
expect-same register/PRG_MODE.BIN register/samples/Z320/PRG_MODE.BIN

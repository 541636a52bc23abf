# The register trades a day: its hours change, the daily and the periodic close count one more, the stock moves. The
# program reads what it holds then.
start
expect E_ComPort 4
click C_Z320
copy Dati/TIME.bin hours_before.bin
expect-bytes register/PRG_MODE.BIN 3125 02072300
register trade
expect-bytes register/PRG_MODE.BIN 3125 03072400
expect-different register/PRG_PLU.BIN register/samples/Z320/PRG_PLU.BIN
expect-different register/TOTALS.BIN register/samples/Z320/TOTALS.BIN
click C_ModificaProgrammazione
box plain * Yes
screen FrmSetup
expect-same Dati/PRG_MODE.BIN register/PRG_MODE.BIN
expect-same Dati/PRG_PLU.BIN register/PRG_PLU.BIN
expect-file Dati/TIME.bin size 240
expect-different Dati/TIME.bin hours_before.bin
# All else of the image is as it was: receipt number, closes and grand total aside.
copy register/PRG_MODE.BIN traded.bin
copy register/samples/Z320/PRG_MODE.BIN sample.bin
fill traded.bin 3117 4 00
fill traded.bin 3125 12 00
fill sample.bin 3117 4 00
fill sample.bin 3125 12 00
expect-same traded.bin sample.bin
# And another one.
register trade
expect-bytes register/PRG_MODE.BIN 3125 04072500

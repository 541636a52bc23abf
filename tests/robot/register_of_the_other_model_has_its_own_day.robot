# A register of the other model comes with the day of its own shop, and trades on from there.
start
expect E_ComPort 4
copy Dati/TIME.bin hours_of_cafe.bin
register model Z300
expect-same register/TOTALS.BIN register/samples/Z300/TOTALS.BIN
expect-different register/samples/Z300/TOTALS.BIN register/samples/Z320/TOTALS.BIN
click C_Z300
click C_ModificaProgrammazione
box plain * Yes
screen FrmSetup
expect-file Dati/TIME.bin size 240
expect-different Dati/TIME.bin hours_of_cafe.bin
expect-bytes register/PRG_MODE.BIN 3125 11062000
register trade
expect-bytes register/PRG_MODE.BIN 3125 12062100

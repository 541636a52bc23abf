# The first of the sixteen digits of an amount is its sign, except that ten to the fifteenth is positive.
write report.bin ""
poke report.bin 0 4523010000000010
poke report.bin 8 0000000000000010
poke report.bin 16 0001000000000090
poke report.bin 24 0000000000000020
poke report.bin 32 4523010000000000
register report 3 report.bin
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_Report
screen FrmReportExport
check Chk_Report(3) on
click C_Export
expect-line Report/C-I-D.csv 2 "-123.45;10000000000000.00;-1.00;-0.00;123.45"

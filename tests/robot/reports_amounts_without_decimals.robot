# A register without decimals: the digits of an amount go through as they are, behind a minus sign with their zeros.
poke register/PRG_MODE.BIN 67 00
write report.bin ""
poke report.bin 0 4523010000000010
poke report.bin 8 0000000000000010
poke report.bin 16 4523010000000000
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
expect-line Report/C-I-D.csv 2 "-000000000012345;1000000000000000;12345;0;0"

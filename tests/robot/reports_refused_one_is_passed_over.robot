# A report that the register refuses is passed over, with a line in the log alone; the others come, and no older file is
# taken in its place.
write report.bin ""
poke report.bin 0 0001000000000000
register report 3 report.bin
write report.bin ""
register report 12 report.bin
start
expect E_ComPort 4
write Dati/C-I-D.bin "an older report"
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_Report
screen FrmReportExport
check Chk_Report(3) on
check Chk_Report(12) on
register answer 4097 3
mark-log
click C_Export
expect-log-like "Receive_ReportEcr error. File 3 Code: 1001 Desc: *"
expect-log-like "Time for download report 12 is:*"
expect-file Report/C-I-D.csv missing
expect-file Dati/C-I-D.bin missing
expect-lines Report/TIME.csv 25
nobox
screen FrmReportExport

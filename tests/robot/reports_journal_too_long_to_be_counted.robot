# A journal of 786,420 bytes or more cannot be counted any more: its first line alone comes out.
fill report.bin 0 786420 41
register report 16 report.bin
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_Report
screen FrmReportExport
check Chk_Report(16) on
click C_Export
expect-text "Report/FULL EJ.csv" "LineFromEj\r\nAAAAAAAAAAAAAAAAAAAAAAAA\r\n"
truncate report.bin 786419
register report 16 report.bin
delete "Report/FULL EJ.csv"
click C_Export
expect-lines "Report/FULL EJ.csv" 30248
nobox

# Reports that are shorter than they should be read as if zeros followed; nobody is told.
write report.bin ""
poke report.bin 0 4200000000000000
register report 7 report.bin
write nothing.bin ""
register report 20 nothing.bin
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_Report
screen FrmReportExport
check Chk_Report(7) on
check Chk_Report(20) on
click C_Export
expect-lines "Report/ALL PLU.csv" 3001
expect-line "Report/ALL PLU.csv" 2 "42;0;0.00;0;0.00"
expect-line "Report/ALL PLU.csv" 3001 "0;0;0.00;0;0.00"
expect-lines Report/ASK.csv 3001
nobox

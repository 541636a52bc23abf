# On the Z320 a tick stored for the open tables takes part in the export, though no box shows it: whole numbers, with
# a sign, never scaled.
fill Setup/ExportOption.ini 0 24 00
poke Setup/ExportOption.ini 15 01
write report.bin ""
poke report.bin 0 07393000000CFFFFFFFF
register report 15 report.bin
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_Report
screen FrmReportExport
expect-visible Chk_Report(15) no
expect-checked Chk_Report(15) on
click C_Export
expect-lines "Report/OPEN TBL.csv" 71
expect-line "Report/OPEN TBL.csv" 1 "TableNumber;TotalSales"
expect-line "Report/OPEN TBL.csv" 2 "7;12345"
expect-line "Report/OPEN TBL.csv" 3 "12;-1"
expect-line "Report/OPEN TBL.csv" 71 "0;0"

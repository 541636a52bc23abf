# The item range, which only a tick in the file asks for, leaves an empty CSV file.
fill Setup/ExportOption.ini 0 24 00
poke Setup/ExportOption.ini 8 01
write report.bin ""
poke report.bin 0 1111
truncate report.bin 36
register report 8 report.bin
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_Report
screen FrmReportExport
click C_Export
expect-file "Report/RANGE PLU.csv" size 0

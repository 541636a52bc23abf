# A journal has at most as many lines as its file has records; it ends at the first record that begins with zero.
write report.bin ""
poke report.bin 0 4F4E45202020202020202020202020202020202020202020010254574F20202020202020202020202020202020202020202001025448524545202020202020202020202020202020202020200102
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
expect-lines "Report/FULL EJ.csv" 4
poke report.bin 26 00
register report 16 report.bin
delete "Report/FULL EJ.csv"
click C_Export
expect-text "Report/FULL EJ.csv" "LineFromEj\r\nONE                     \r\n"
truncate report.bin 0
register report 16 report.bin
delete "Report/FULL EJ.csv"
click C_Export
expect-text "Report/FULL EJ.csv" "LineFromEj\r\n"

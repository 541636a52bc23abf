# The journals of parts blank the first digit of 255; the full journal leaves the digits and blanks the code 255.
fill Setup/ExportOption.ini 0 24 00
poke Setup/ExportOption.ini 16 01010101
write report.bin ""
poke report.bin 0 544F54203235352E30302020202020202020202020202020010241FF422020202020202020202020202020202020202020200102
register report 16 report.bin
register report 17 report.bin
register report 18 report.bin
register report 19 report.bin
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_Report
screen FrmReportExport
click C_Export
expect-text "Report/FULL EJ.csv" "LineFromEj\r\nTOT 255.00              \r\nA B                     \r\n"
expect-text "Report/OLD EJ.csv" "LineFromEj\r\nTOT  55.00              \r\nA\xB7B                     \r\n"
expect-same "Report/OLD EJ.csv" "Report/LATE EJ.csv"
expect-same "Report/OLD EJ.csv" "Report/DAILY EJ.csv"

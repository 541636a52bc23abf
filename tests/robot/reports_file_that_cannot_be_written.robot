# A CSV file that cannot be written is named on the screen, with a line in the log; the others are written all the same.
write report.bin ""
register report 3 report.bin
write report.bin ""
register report 12 report.bin
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_Report
screen FrmReportExport
check Chk_Report(3) on
check Chk_Report(12) on
make-folder Report/C-I-D.csv
mark-log
click C_Export
nobox
expect-log "C_Export_click err: 75 Desc: Path or file access error"
expect L_Progress "Not written: C-I-D.csv. Another program may have the file open."
expect-lines Report/TIME.csv 25
# Nothing was written over: with the file out of the way the next export goes through.
delete Report/C-I-D.csv
click C_Export
expect L_Progress ""
expect-lines Report/C-I-D.csv 2

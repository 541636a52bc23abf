# With no box ticked an export still asks the register for its release, and leaves an empty RELEASE.csv.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_Report
screen FrmReportExport
expect-file Report/RELEASE.csv missing
delete Log/memo_log.txt
forget-calls
click C_Export
expect-file Report/RELEASE.csv size 0
expect-calls 1
expect-call 1 "send_cmd folder=. direction=0 file=22 timeout=60 port=4"
expect-log-like "Time for download report 22 is:*"
expect-lines Log/memo_log.txt 1
screen FrmReportExport
nobox

# Where no call can be made, each report leaves its line in the log, and the screen stays as it is.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_Report
screen FrmReportExport
check Chk_Report(3) on
register fails
mark-log
click C_Export
expect-log "Receive_ReportEcr error using regwire"
expect-file Report/C-I-D.csv missing
nobox
screen FrmReportExport

# An old firmware hands over RELEA.BIN: that is not taken for the release report, and the log says so.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_Report
screen FrmReportExport
delete Dati/RELEASE.BIN
register release RELEA.BIN
mark-log
click C_Export
expect-log "export_ReportEcr. file per report 22 non trovato"
expect-file Report/RELEASE.csv missing
expect-file Report/RELEA.csv missing
nobox

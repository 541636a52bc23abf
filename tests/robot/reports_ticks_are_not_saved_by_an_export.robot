# An export does not save the ticks; neither does leaving the screen, by its button or by its close box.
write report.bin ""
register report 3 report.bin
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_Report
screen FrmReportExport
check Chk_Report(3) on
click C_Export
expect-file Setup/ExportOption.ini size 0
click C_Annulla
screen FrmSetup
click C_Report
expect-checked Chk_Report(3) off
close
screen FrmSetup

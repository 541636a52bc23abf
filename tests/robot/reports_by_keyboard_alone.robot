# The report screen and the viewer are worked by keyboard alone.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_Report
focus Chk_Report(3)
keys " "
expect-checked Chk_Report(3) on
key Tab
expect-focus Chk_Report(4)
focus C_Export
key Enter
expect-file Report/RELEASE.csv exists
focus C_View
key Enter
screen FrmReportView
expect-focus Cmb_File
focus C_Annulla
key Enter
screen FrmReportExport

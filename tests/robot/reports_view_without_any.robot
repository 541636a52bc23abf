# Before anything was exported the viewer says so, and leads back to the report screen.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_Report
click C_View
screen FrmReportView
expect L_Rows "No report has been exported yet."
expect-enabled C_Print no
expect-enabled C_Pdf no
click C_Annulla
screen FrmReportExport

# The report screen's texts, and the boxes that nobody sees.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_Report
screen FrmReportExport
expect-title "Report export"
expect L_Titolo "Report export"
expect Chk_Report(3) "Cash in drawer report"
expect Chk_Report(20) "All PLU stock report"
expect C_Salva "Save settings"
expect C_Export "Export"
expect C_Annulla "Back"
expect C_View "View"
expect L_MPS_Level "Min. quantity"
expect-visible Chk_Report(6) no
expect-visible Chk_Report(8) no
expect-visible Chk_Report(11) no
expect-visible Chk_Report(15) no
expect-visible Chk_Report(17) no
expect-visible Chk_Report(18) no
expect-visible Chk_Report(19) no
expect-visible Chk_Report(3) yes
expect-visible Chk_Report(4) yes
expect-visible Chk_Report(5) yes
expect-visible Chk_Report(7) yes
expect-visible Chk_Report(9) yes
expect-visible Chk_Report(10) yes
expect-visible Chk_Report(12) yes
expect-visible Chk_Report(13) yes
expect-visible Chk_Report(14) yes
expect-visible Chk_Report(16) yes
expect-visible Chk_Report(20) yes
expect-visible Chk_Report(21) yes
expect Chk_Report(18) "Lastest Report for EJ"
picture Report/screen.png

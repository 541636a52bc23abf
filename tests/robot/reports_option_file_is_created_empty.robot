# Without ExportOption.ini the screen opens with all boxes clear and leaves an empty file; Save Setting fills it.
expect-file Setup/ExportOption.ini missing
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_Report
screen FrmReportExport
expect-file Setup/ExportOption.ini size 0
expect-checked Chk_Report(3) off
expect-checked Chk_Report(4) off
expect-checked Chk_Report(5) off
expect-checked Chk_Report(6) off
expect-checked Chk_Report(7) off
expect-checked Chk_Report(8) off
expect-checked Chk_Report(9) off
expect-checked Chk_Report(10) off
expect-checked Chk_Report(11) off
expect-checked Chk_Report(12) off
expect-checked Chk_Report(13) off
expect-checked Chk_Report(14) off
expect-checked Chk_Report(15) off
expect-checked Chk_Report(16) off
expect-checked Chk_Report(17) off
expect-checked Chk_Report(18) off
expect-checked Chk_Report(19) off
expect-checked Chk_Report(20) off
expect-checked Chk_Report(21) off
check Chk_Report(7) on
check Chk_Report(21) on
click C_Salva
screen FrmReportExport
expect-file Setup/ExportOption.ini size 24
expect-bytes Setup/ExportOption.ini 0 000000000000000100000000000000000000000000010000
close
click C_Report
expect-checked Chk_Report(7) on
expect-checked Chk_Report(21) on
expect-checked Chk_Report(3) off

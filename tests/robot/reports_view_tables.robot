# The viewer shows an export as a table with its sums below; a text finds rows, a tick brings the empty ones too, and the
# table goes into a PDF file.
write hours.bin ""
poke hours.bin 90 0400501200000000000011000003000000000000
register report 12 hours.bin
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_Report
check Chk_Report(12) on
click C_Export
click C_View
expect Cmb_File "TIME"
expect Cmb_Export "1 of 1"
expect-count Fg_Report 3
expect-cell Fg_Report 0 2 "SalesTotal"
expect-cell Fg_Report 1 0 "09:00"
expect-cell Fg_Report 1 2 "12.50"
expect-cell Fg_Sums 1 1 "15"
expect-cell Fg_Sums 1 2 "15.50"
expect L_Rows "2 of 24 rows"
check Chk_Figures off
expect L_Rows "24 of 24 rows"
type E_Filter "10:"
expect L_Rows "1 of 24 rows"
expect-cell Fg_Sums 1 2 "3.00"
click C_Pdf
expect-chooser "Save as PDF" "PDF (*.pdf)"
file Report/hours.pdf
expect-bytes Report/hours.pdf 0 255044462D
click C_Pdf
file cancel
screen FrmReportView
tab Tabs 1
expect-tab Tabs 1 "Pictures"
click C_Pdf
file Report/pictures.pdf
expect-bytes Report/pictures.pdf 0 255044462D
nobox

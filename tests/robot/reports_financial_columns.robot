# The financial report shows the total at 184 in two columns and the one at 152 in none.
write report.bin ""
poke report.bin 136 6113000000000000
poke report.bin 144 4114000000000000
poke report.bin 152 2115000000000000
poke report.bin 160 0116000000000000
poke report.bin 168 8116000000000000
poke report.bin 176 6117000000000000
poke report.bin 184 4118000000000000
poke report.bin 192 2119000000000000
truncate report.bin 568
register report 4 report.bin
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_Report
screen FrmReportExport
check Chk_Report(4) on
click C_Export
expect-lines Report/FINANCIAL.csv 2
expect-line Report/FINANCIAL.csv 2 "0.00;0.00;0.00;0.00;0.00;0.00;0.00;0.00;0.00;0.00;0.00;0.00;0.00;0.00;0.00;0.00;0.00;13.61;14.41;16.81;16.01;18.41;17.61;18.41;19.21;0;0.00;0.00;0;0.00;0.00;0.00;0.00;0;0.00;0;0.00;0;0.00;0;0.00;0;0.00;0;0.00;0;0.00;0;0.00;0;0.00;0;0.00;0;0.00;0;0.00;0.00;0.00;0.00;0.00;0.00;0.00;0.00;0.00;0.00;0.00;0.00;0.00;0;0.00;0;0.00;0;0.00;0;0;0.00;0;0;0;0.00;0;0.00;0;0.00;0.00;0.00;0.00"

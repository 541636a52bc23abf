# Quantities are ten-thousandths in their shortest form, whatever the decimals of the register; counters are plain.
write report.bin ""
poke report.bin 0 01050050010000005012000000000000
register report 5 report.bin
write hours.bin ""
poke hours.bin 0 42009909000000000000
register report 12 hours.bin
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_Report
screen FrmReportExport
check Chk_Report(5) on
check Chk_Report(12) on
forget-calls
click C_Export
expect-calls 3
expect-call 1 "range_report folder=. file=5 timeout=120 from=1 to=99 port=4"
expect-call 2 "send_cmd folder=. direction=0 file=12 timeout=2 port=4"
expect-lines "Report/RANGE DEPT.csv" 100
expect-line "Report/RANGE DEPT.csv" 1 "DeptGroupNumber;DeptNumber;DeptItemCounter;RegSalesTotal"
expect-line "Report/RANGE DEPT.csv" 2 "1;5;1.5;12.50"
expect-line Report/TIME.csv 1 "SalesCount;SalesTotal"
expect-line Report/TIME.csv 2 "42;9.99"
expect-lines Report/TIME.csv 25

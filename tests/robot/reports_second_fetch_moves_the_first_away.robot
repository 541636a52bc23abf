# A second fetch of a report moves the file of the first one to the report folder, over the one there; the CSV file keeps
# the first text and gets a new header and new lines behind it.
write first.bin ""
poke first.bin 0 0001000000000000
register report 3 first.bin
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_Report
screen FrmReportExport
write Dati/Report/C-I-D.bin "older"
check Chk_Report(3) on
click C_Export
expect-same Dati/C-I-D.bin first.bin
expect-text Dati/Report/C-I-D.bin "older"
expect-lines Report/C-I-D.csv 2
write second.bin ""
poke second.bin 0 0002000000000000
register report 3 second.bin
click C_Export
expect-same Dati/C-I-D.bin second.bin
expect-same Dati/Report/C-I-D.bin first.bin
expect-lines Report/C-I-D.csv 4
expect-line Report/C-I-D.csv 1 "CashInDrawerTotal;CheckInDrawerTotal;ChergeInDrawerTotal;Credit1InDrawerTotal;Credit2InDrawerTotal"
expect-line Report/C-I-D.csv 2 "1.00;0.00;0.00;0.00;0.00"
expect-line Report/C-I-D.csv 3 "CashInDrawerTotal;CheckInDrawerTotal;ChergeInDrawerTotal;Credit1InDrawerTotal;Credit2InDrawerTotal"
expect-line Report/C-I-D.csv 4 "2.00;0.00;0.00;0.00;0.00"

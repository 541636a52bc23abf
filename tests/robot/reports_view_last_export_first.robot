# A file that was exported to twice shows its last export; the one before can be chosen.
write drawer.bin ""
poke drawer.bin 0 0001000000000000
register report 3 drawer.bin
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_Report
check Chk_Report(3) on
click C_Export
poke drawer.bin 0 0002000000000000
register report 3 drawer.bin
click C_Export
click C_View
expect-items Cmb_Export "1 of 2" "2 of 2"
expect Cmb_Export "2 of 2"
expect-cell Fg_Report 1 0 "2.00"
choose Cmb_Export "1 of 2"
expect-cell Fg_Report 1 0 "1.00"

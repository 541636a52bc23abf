# The lowest quantity starts at 0 each time the screen opens; it is digits only, and the register is asked for the range
# from it to 9999, whatever is typed.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_Report
screen FrmReportExport
expect Txt_MPS_Min "0"
expect L_MPS_Min "(max. 9999)"
check Chk_Report(21) on
forget-calls
click C_Export
expect-calls 2
expect-call 1 "range_report folder=. file=21 timeout=120 from=0 to=9999 port=4"
focus Txt_MPS_Min
key Backspace
type Txt_MPS_Min "a1-2x5"
expect Txt_MPS_Min "125"
forget-calls
click C_Export
expect-calls 2
expect-call 1 "range_report folder=. file=21 timeout=120 from=125 to=9999 port=4"
focus Txt_MPS_Min
key Backspace 3
forget-calls
click C_Export
expect-calls 2
expect-call 1 "range_report folder=. file=21 timeout=120 from=0 to=9999 port=4"
type Txt_MPS_Min "12345"
close
click C_Report
expect Txt_MPS_Min "0"
check Chk_Report(21) on
forget-calls
click C_Export
expect-calls 2
expect-call 1 "range_report folder=. file=21 timeout=120 from=0 to=9999 port=4"

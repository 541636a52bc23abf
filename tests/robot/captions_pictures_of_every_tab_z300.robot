# Every tab of the captions can be seen and pictured on a Z300.
register model Z300
start
expect E_ComPort 4
click C_Z300
click C_ModificaProgrammazione
box plain * Yes
click C_MessageSetup
tab Tab_Invoice 0
picture captions-1.png
expect-file captions-1.png exists
tab Tab_Invoice 1
picture captions-2.png
expect-file captions-2.png exists
tab Tab_Invoice 2
picture captions-3.png
expect-file captions-3.png exists
tab Tab_Invoice 3
picture captions-4.png
expect-file captions-4.png exists
tab Tab_Invoice 4
picture captions-5.png
expect-file captions-5.png exists
tab Tab_Print 1
row FG_Caption 1
picture captions-6.png
expect-file captions-6.png exists
tab Tab_Print 2
picture captions-7.png
expect-file captions-7.png exists

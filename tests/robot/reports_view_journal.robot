# The journal is paged through receipt by receipt; a text leaves those in which it stands.
write journal.bin ""
poke journal.bin 0 434F464645452020202020202020202020202020322E35300102544F54414C202020202020202020202020202020322E3530010220202020202020202020202020202020202020202020202001025445412020202020202020202020202020202020312E38300102544F54414C202020202020202020202020202020312E383001022020202020202020202020202020202020202020202020200102434F464645452020202020202020202020202020322E35300102544F54414C202020202020202020202020202020322E353001022020202020202020202020202020202020202020202020200102
register report 16 journal.bin
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_Report
check Chk_Report(16) on
click C_Export
click C_View
expect-tab Tabs 2 "Receipts"
expect L_Receipt "Receipt 1 of 3"
expect T_Receipt "COFFEE              2.50\nTOTAL               2.50\n"
expect-enabled C_Previous no
click C_Next
expect T_Receipt "TEA                 1.80\nTOTAL               1.80\n"
click C_Next
expect L_Receipt "Receipt 3 of 3"
expect-enabled C_Next no
type E_Filter "tea"
expect L_Receipt "Receipt 1 of 1"
expect T_Receipt "TEA                 1.80\nTOTAL               1.80\n"
type E_Filter "x"
expect L_Receipt "Not found"

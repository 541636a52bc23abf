# The same warning in the built-in words where the language file has none.
delete Setup/DescCaption.ini
write Setup/FrmDescEng.txt ""
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_MessageSetup

box warning "Warning! The Language file definition is not present" Ok
screen FrmCaptionSetting
expect-title "Caption Setup Mode"
expect-tab Tab_Print 0 "ON RECEIPT"
expect-tab Tab_Invoice 0 "HEADER"
tab Tab_Print 2
expect-tab Tab_Print 2 "SCROLL MESSAGE"
expect-items Cmb_WaitTime "0. NO" "1. 3 minutes" "2. 5 minutes" "3. 10 minutes"
expect-items Cmb_ScrollSpeed "0. SLOW" "1. MEDIUM" "2. FAST"
tab Tab_Print 1
expect-tab Tab_Print 1 "CUSTOM TEXT"

# Without the catalogue the system options have their built-in captions and choices.
write Setup/FrmDescEng.txt ""
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_SystemOption
expect-title "System Options"
expect L_ConsecutiveReceipt "Consecutive Receipt #"
expect L_Max(2) "(Max Value 9999)"
expect-items Cmb_DecimalPosition "0. (ex x)" "1. (ex x.x)" "2. (ex x.xx)" "3. (ex x.xxx)"
expect-items Cmb_ComPort2 "1. PC" "2. BCR" "3. EFT"

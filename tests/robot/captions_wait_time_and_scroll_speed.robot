# Wait time and scroll speed are shown by their stored codes and saved as the number in front of the point.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_MessageSetup

tab Tab_Print 2
expect F_LcdOption "Display options"
expect-items Cmb_WaitTime "0. No" "1. 3 minutes" "2. 5 minutes" "3. 10 minutes"
expect-items Cmb_ScrollSpeed "0. Slow" "1. Medium" "2. Fast"
expect Cmb_WaitTime "1. 3 minutes"
expect Cmb_ScrollSpeed "2. Fast"
choose Cmb_WaitTime "3. 10 minutes"
choose Cmb_ScrollSpeed "0. Slow"
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 174 0300
focus Cmb_WaitTime
keys "0"
expect Cmb_WaitTime "3. 10 minutes"
choose Cmb_WaitTime #0
choose Cmb_ScrollSpeed #1
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 174 0001

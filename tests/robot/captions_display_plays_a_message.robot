# The picture of the display shows the message that was entered and lets it run.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_MessageSetup

tab Tab_Print 2
expect I_Display "CLOSED - SEE YOU TOM"
focus E_RegModeSalesScrollMessage
expect I_Display "BUON APPETITO       "
keys "!"
expect I_Display "BUON APPETITO!      "
expect C_Play "Play"
choose Cmb_ScrollSpeed "0. Slow"
click C_Play
expect C_Play "Stop"
expect I_Display "ON APPETITO!        "
choose Cmb_ScrollSpeed "2. Fast"
click C_Play
expect C_Play "Play"
expect I_Display "BUON APPETITO!      "
click C_Play
tab Tab_Print 0
tab Tab_Print 2
expect C_Play "Play"

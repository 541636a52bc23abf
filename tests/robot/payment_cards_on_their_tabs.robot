# Six cards on six tabs: the last one is changed and saved on a Z300.
register model Z300
start
expect E_ComPort 4
click C_Z300
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_TenderProgram
expect-title "Payment media"
expect F_Payment(0) "Total"
expect F_Payment(1) "Check"
expect F_Payment(2) "Charge"
expect-count Tab_Credit 6
expect-tab Tab_Credit 0 "Card 1"
expect-items Cmb_Halo(8) "0. No limit" "1. Up to 0.99" "2. Up to 9.99" "3. Up to 99.99" "4. Up to 999.99"
tab Tab_Credit 5
expect-tab Tab_Credit 5 "Card 6"
type E_Name(8) "Gift"
choose Cmb_Halo(8) "3. Up to 99.99"
choose Cmb_TenderingAmount(8) "1. Compulsory"
choose Cmb_ChangeAllowed(8) "0. Yes"
choose Cmb_Drawer(8) "1. Closed"
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 3103 4769667420202020202020200305

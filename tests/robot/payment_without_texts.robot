# Without the catalogue the payment screen has its built-in captions and choices.
write Setup/FrmDescEng.txt ""
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_TenderProgram
expect-title "Program Payment Media"
expect F_Payment(2) "CHARGE"
expect-tab Tab_Credit 0 "CARD 1"
expect L_Hdlo(0) "HDLO"
expect-items Cmb_TenderingAmount(4) "0. NOT COMPULSORY" "1. COMPULSORY"
expect-items Cmb_ChangeAllowed(0) "0. YES" "1. NO"
expect-items Cmb_Drawer(0) "0. OPEN" "1. CLOSED"

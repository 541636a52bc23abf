# With the texts of a language the labels count from 0.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_PopUpPluList
expect-title "Pop-up PLU lists"
expect L_Plu1(1) "PLU 0"
expect L_Plu5(20) "PLU 19"

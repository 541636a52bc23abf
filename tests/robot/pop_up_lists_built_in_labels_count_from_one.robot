# The built-in labels count from 1.
write Setup/FrmDescEng.txt ""
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_PopUpPluList
expect-title "Pop Up Plu List"
expect L_Titolo "POP UP PLU LIST"
expect L_Plu1(1) "PLU 1:"
expect L_Plu5(20) "PLU 20:"

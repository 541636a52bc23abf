# Without the catalogue the no-sale key has its built-in choices, among them 1. NOT INPUT.
write Setup/FrmDescEng.txt ""
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_NSProgram
expect-title "Program #/NS Key"
expect-items Cmb_EJInput "0. INPUT" "1. NOT INPUT"
expect-items Cmb_ControlKeyPositioning "0. REG & MGR" "1. MGR ONLY"

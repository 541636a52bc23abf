# Of the price types the first two each ask whether the other has a word: with one missing, the other shows the built-in
# text and the one that is missing shows none.
write Setup/FrmDescEng.txt "FRM_ALL_OPEN=Free\n"
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_DepartmentProgram
expect-items Cmb_PriceType "0. OPEN" "1. " "2. PRESET"
close
close
close
close
close
expect-ended
write Setup/FrmDescEng.txt "FRM_ALL_NORMAL=Usual\nFRM_ALL_PRESET=Fixed\n"
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * No
click C_ProgramMode
click C_DepartmentProgram
expect-items Cmb_PriceType "0. " "1. NORMAL" "2. Fixed"
expect-items Cmb_Status2 "0. Usual" "1. SINGLE"

# A full pop-up list: the warning, and the list control goes back to 0.
fill register/PRG_PLU.BIN 482 160 11
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_PluProgram
row Fg_Plu 11
choose Cmb_PluListLink "4"
box warning "This pop-up list is full. The PLU was not added to it." Ok
expect Cmb_PluListLink "0"
click C_Salva
expect-bytes Dati/PRG_PLU.BIN 1278 00

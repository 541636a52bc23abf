# Without the catalogue the clerk screen has its built-in captions, headings and choices.
write Setup/FrmDescEng.txt ""
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_ClerkSystemProgram
expect-title "Program Clerk System"
expect L_ClerkNumber "Clerk Number:"
expect L_PswMax "(Max 999)"
expect-items Cmb_Void "0. ENABLE" "1. DISABLE"
expect-items Cmb_Mode "0. NORMAL" "1. TRAINING"
expect-cell Fg_Clerk 0 2 "Pdw"
expect-cell Fg_Clerk 0 9 "N. Dep&PLU"

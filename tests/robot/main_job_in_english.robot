# The main job with every text in English: take the programming, change a VAT rate and an item, save, send; a value that is
# too high is refused in that language.
poke Setup/Language.ini 0 00
start
expect E_ComPort 4
expect C_Exit "Exit"
click C_Z320
expect C_ModificaProgrammazione "Update cash register programming"
click C_ModificaProgrammazione
box plain "Read the settings from the cash register?\nYes: read them now.\nNo: continue with those kept on this PC." Yes
screen FrmSetup
expect C_ProgramMode "Program mode"
click C_ProgramMode
expect-title "Program mode"
click C_SetVatRate
expect L_Titolo "VAT rates"
expect C_Salva "Save"
type E_VatRate(1) "100000"
box critical "The value is too high. The last digit was removed." Ok
paste E_VatRate(1) 21000
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 38 00100200
click C_Annulla
click C_PluProgram
expect-title "PLUs"
expect-cell Fg_Plu 0 2 "PLU name"
paste E_Name "Test"
click C_Salva
click C_Invia_Ecr
nobox
screen FrmPrgPlu
expect-bytes register/PRG_PLU.BIN 810 54657374
click C_Annulla
click C_SetVatRate
click C_Invia_Ecr
nobox
expect-same register/PRG_MODE.BIN Dati/PRG_MODE.BIN
register off
click C_Invia_Ecr
box plain "The cash register or its programming does not match the chosen model, or the register does not answer.\nCheck the cable, the port and the model on the start screen, then try again." Ok
expect-ended

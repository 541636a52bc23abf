# The main job with every text in Dutch: take the programming, change a VAT rate and an item, save, send; a value that is
# too high is refused in that language.
poke Setup/Language.ini 0 04
start
expect E_ComPort 4
expect C_Exit "Afsluiten"
click C_Z320
expect C_ModificaProgrammazione "Programmering wijzigen"
click C_ModificaProgrammazione
box plain "De instellingen uit de kassa lezen?\nJa: nu lezen.\nNee: verder met die op deze pc." Yes
screen FrmSetup
expect C_ProgramMode "Programmering"
click C_ProgramMode
expect-title "Programmering"
click C_SetVatRate
expect L_Titolo "Btw-tarieven"
expect C_Salva "Opslaan"
type E_VatRate(1) "100000"
box critical "De waarde is te hoog. Het laatste cijfer is gewist." Ok
paste E_VatRate(1) 21000
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 38 00100200
click C_Annulla
click C_PluProgram
expect-title "Artikelen (PLU)"
expect-cell Fg_Plu 0 2 "PLU-naam"
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
box plain "De kassa of haar programmering past niet bij het gekozen model, of de kassa antwoordt niet.\nControleer de kabel, de poort en het model op het beginscherm en probeer het opnieuw." Ok
expect-ended

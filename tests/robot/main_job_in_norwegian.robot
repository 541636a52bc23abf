# The main job with every text in Norwegian: take the programming, change a VAT rate and an item, save, send; a value that is
# too high is refused in that language.
poke Setup/Language.ini 0 07
start
expect E_ComPort 4
expect C_Exit "Avslutt"
click C_Z320
expect C_ModificaProgrammazione "Endre kassens programmering"
click C_ModificaProgrammazione
box plain "Hente innstillingene fra kassen?\nJa: hent dem nå.\nNei: fortsett med dem på denne PC-en." Yes
screen FrmSetup
expect C_ProgramMode "Programmering"
click C_ProgramMode
expect-title "Programmering"
click C_SetVatRate
expect L_Titolo "Mva-satser"
expect C_Salva "Lagre"
type E_VatRate(1) "100000"
box critical "Verdien er for høy. Det siste sifferet er fjernet." Ok
paste E_VatRate(1) 21000
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 38 00100200
click C_Annulla
click C_PluProgram
expect-title "Varer (PLU)"
expect-cell Fg_Plu 0 2 "PLU-navn"
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
box plain "Kassen eller programmeringen passer ikke til den valgte modellen, eller kassen svarer ikke.\nSe etter kabel, port og modell på startskjermen, og prøv på nytt." Ok
expect-ended

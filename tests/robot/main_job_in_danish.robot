# The main job with every text in Danish: take the programming, change a VAT rate and an item, save, send; a value that is
# too high is refused in that language.
poke Setup/Language.ini 0 06
start
expect E_ComPort 4
expect C_Exit "Afslut"
click C_Z320
expect C_ModificaProgrammazione "Ret kassens programmering"
click C_ModificaProgrammazione
box plain "Hente indstillingerne fra kassen?\nJa: hent dem nu.\nNej: fortsæt med dem på denne pc." Yes
screen FrmSetup
expect C_ProgramMode "Programmering"
click C_ProgramMode
expect-title "Programmering"
click C_SetVatRate
expect L_Titolo "Momssatser"
expect C_Salva "Gem"
type E_VatRate(1) "100000"
box critical "Værdien er for høj. Det sidste ciffer er slettet." Ok
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
box plain "Kassen eller dens programmering passer ikke til den valgte model, eller kassen svarer ikke.\nSe efter kabel, port og model på startskærmen, og prøv igen." Ok
expect-ended

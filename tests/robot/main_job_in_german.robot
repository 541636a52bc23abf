# The main job with every text in German: take the programming, change a VAT rate and an item, save, send; a value that is
# too high is refused in that language.
poke Setup/Language.ini 0 03
start
expect E_ComPort 4
expect C_Exit "Beenden"
click C_Z320
expect C_ModificaProgrammazione "Programmierung ändern"
click C_ModificaProgrammazione
box plain "Die Einstellungen aus der Kasse lesen?\nJa: jetzt lesen.\nNein: mit denen weitermachen, die auf diesem PC liegen." Yes
screen FrmSetup
expect C_ProgramMode "Programmierung"
click C_ProgramMode
expect-title "Programmierung"
click C_SetVatRate
expect L_Titolo "MwSt-Sätze"
expect C_Salva "Speichern"
type E_VatRate(1) "100000"
box critical "Der Wert ist zu hoch. Die letzte Ziffer wurde entfernt." Ok
paste E_VatRate(1) 21000
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 38 00100200
click C_Annulla
click C_PluProgram
expect-title "Artikel (PLU)"
expect-cell Fg_Plu 0 2 "PLU-Name"
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
box plain "Die Kasse oder ihre Programmierung passt nicht zum gewählten Modell, oder die Kasse antwortet nicht.\nPrüfen Sie Kabel, Anschluss und Modell auf dem Startbildschirm und versuchen Sie es noch einmal." Ok
expect-ended

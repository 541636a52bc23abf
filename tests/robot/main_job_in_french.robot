# The main job with every text in French: take the programming, change a VAT rate and an item, save, send; a value that is
# too high is refused in that language.
poke Setup/Language.ini 0 02
start
expect E_ComPort 4
expect C_Exit "Quitter"
click C_Z320
expect C_ModificaProgrammazione "Modifier la programmation"
click C_ModificaProgrammazione
box plain "Lire les réglages de la caisse ?\nOui : les lire maintenant.\nNon : continuer avec ceux de ce PC." Yes
screen FrmSetup
expect C_ProgramMode "Programmation"
click C_ProgramMode
expect-title "Programmation"
click C_SetVatRate
expect L_Titolo "Taux de TVA"
expect C_Salva "Enregistrer"
type E_VatRate(1) "100000"
box critical "La valeur est trop grande. Le dernier chiffre a été effacé." Ok
paste E_VatRate(1) 21000
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 38 00100200
click C_Annulla
click C_PluProgram
expect-title "Articles (PLU)"
expect-cell Fg_Plu 0 2 "Nom du PLU"
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
box plain "La caisse ou sa programmation ne correspond pas au modèle choisi, ou la caisse ne répond pas.\nVérifiez le câble, le port et le modèle sur l'écran de départ, puis recommencez." Ok
expect-ended

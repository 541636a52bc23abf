# The main job with every text in Spanish: take the programming, change a VAT rate and an item, save, send; a value that is
# too high is refused in that language.
poke Setup/Language.ini 0 01
start
expect E_ComPort 4
expect C_Exit "Salir"
click C_Z320
expect C_ModificaProgrammazione "Cambiar la programación"
click C_ModificaProgrammazione
box plain "¿Leer los ajustes de la caja?\nSí: leerlos ahora.\nNo: seguir con los guardados en este PC." Yes
screen FrmSetup
expect C_ProgramMode "Programación"
click C_ProgramMode
expect-title "Programación"
click C_SetVatRate
expect L_Titolo "Tipos de IVA"
expect C_Salva "Guardar"
type E_VatRate(1) "100000"
box critical "El valor es demasiado alto. Se ha borrado la última cifra." Ok
paste E_VatRate(1) 21000
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 38 00100200
click C_Annulla
click C_PluProgram
expect-title "Artículos (PLU)"
expect-cell Fg_Plu 0 2 "Nombre PLU"
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
box plain "La caja o su programación no corresponde al modelo elegido, o la caja no responde.\nCompruebe el cable, el puerto y el modelo en la pantalla inicial, e inténtelo otra vez." Ok
expect-ended

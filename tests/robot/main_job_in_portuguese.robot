# The main job with every text in Portuguese: take the programming, change a VAT rate and an item, save, send; a value that is
# too high is refused in that language.
poke Setup/Language.ini 0 05
start
expect E_ComPort 4
expect C_Exit "Sair"
click C_Z320
expect C_ModificaProgrammazione "Alterar a programação"
click C_ModificaProgrammazione
box plain "Ler os ajustes da caixa?\nSim: ler agora.\nNão: continuar com os guardados neste PC." Yes
screen FrmSetup
expect C_ProgramMode "Programação"
click C_ProgramMode
expect-title "Programação"
click C_SetVatRate
expect L_Titolo "Taxas de IVA"
expect C_Salva "Guardar"
type E_VatRate(1) "100000"
box critical "O valor é demasiado alto. O último algarismo foi apagado." Ok
paste E_VatRate(1) 21000
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 38 00100200
click C_Annulla
click C_PluProgram
expect-title "Artigos (PLU)"
expect-cell Fg_Plu 0 2 "Nome do PLU"
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
box plain "A caixa ou a sua programação não corresponde ao modelo escolhido, ou a caixa não responde.\nVerifique o cabo, a porta e o modelo no ecrã inicial e tente outra vez." Ok
expect-ended

# The first codes of the three pages are shown and saved; a code that no item has is stored as typed.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_PluPageProgram
expect-title "PLU pages"
expect L_Titolo "PLU pages"
expect L_PluPage1 "PLU page 1"
expect L_Desc(0) "First PLU"
expect E_PluPage(0) "1"
expect E_PluPage(1) "51"
expect E_PluPage(2) "101"
paste E_PluPage(1) 9999999999998
click C_Salva
screen FrmPluPageProgram
expect-bytes Dati/PRG_MODE.BIN 70 010000000000000098999999999909000101000000000000
copy Dati/PRG_MODE.BIN saved.bin
poke saved.bin 78 5100000000000000
expect-same saved.bin register/PRG_MODE.BIN

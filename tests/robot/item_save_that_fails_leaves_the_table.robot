# A price that is no number ends the save of an item: its new code and its pop-up list are as they were, and the table
# stays in order when another item is saved.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_PluProgram
copy Dati/PRG_PLU.BIN before.bin
focus E_FreeCode
key Ctrl+a
keys "9999999999999"
choose Cmb_PluListLink "4"
paste E_Price2 "free"
click C_Salva
nobox
expect-log "FrmPrgPlu Salva: Type mismatch"
expect Cmb_PluNumber 1
expect-same Dati/PRG_PLU.BIN before.bin
row Fg_Plu 2
click C_Salva
expect-same Dati/PRG_PLU.BIN before.bin
row Fg_Plu 1
expect Cmb_PluListLink "1"

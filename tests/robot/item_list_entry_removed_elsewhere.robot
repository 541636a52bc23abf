# An entry that was removed on the pop-up screen is no fault when its item leaves the list.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_PopUpPluList
paste E_Plu1(1) 0
click C_Salva
expect-bytes Dati/PRG_PLU.BIN 2 0000000000000000
expect-bytes Dati/PRG_PLU.BIN 838 01
click C_Annulla
click C_PluProgram
expect Cmb_PluListLink "1"
choose Cmb_PluListLink "0"
mark-log
click C_Salva
expect-no-log "FrmPrgPlu Salva: Index out of range"
expect-bytes Dati/PRG_PLU.BIN 838 00
expect-bytes Dati/PRG_PLU.BIN 2 0000000000000000

# An emptied number keeps the item that was shown; a save without a number writes nothing, and the log tells.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_PluProgram
row Fg_Plu 3
focus Cmb_PluNumber
key Ctrl+a
key Backspace
expect E_FreeCode "3"
click C_Salva
expect-log "FrmPrgPlu Salva: Index out of range"
expect-same Dati/PRG_PLU.BIN register/PRG_PLU.BIN

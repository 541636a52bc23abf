# The lists on a Z300: a save that changes nothing writes the same file.
register model Z300
start
expect E_ComPort 4
click C_Z300
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_PopUpPluList
click C_Salva
expect-same Dati/PRG_PLU.BIN register/PRG_PLU.BIN
click C_Annulla
screen FrmProgramMode

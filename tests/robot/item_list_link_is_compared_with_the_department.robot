# The pop-up list is compared with the department: list 1 for an item of department 1 counts as no change, though the
# list is another one, and the stored list 1 counts as a change for an item of department 6.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_PluProgram
row Fg_Plu 1
choose Cmb_PluListLink "0"
choose Cmb_PluListLink "1"
click C_Salva
expect-bytes Dati/PRG_PLU.BIN 838 0101
row Fg_Plu 2
choose Cmb_PluListLink "1"
click C_Salva
expect-bytes Dati/PRG_PLU.BIN 882 0100
row Fg_Plu 11
choose Cmb_PluListLink "0"
click C_Salva
expect-bytes Dati/PRG_PLU.BIN 1278 0001

# A new code alone leaves the entry of the pop-up list at the old one.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_PluProgram
row Fg_Plu 10
paste E_FreeCode 17
click C_Salva
expect-bytes Dati/PRG_PLU.BIN 82 1000000000000000

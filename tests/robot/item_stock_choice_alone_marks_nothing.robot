# A change of the stock choice alone does not count as a change of the item.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_PluProgram
choose Cmb_StockUsed "0. No"
click C_Salva
expect-bytes Dati/PRG_PLU.BIN 839 00

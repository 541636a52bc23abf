# A new item is typed into the first empty row, takes over the type that was shown, and goes to its place by its code.
# The number goes on to the next empty row. An empty row says that no stock is kept, and that goes to all items.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_PluProgram
row Fg_Plu 122
expect Cmb_Status "2. Preset"
row Fg_Plu 123
expect E_FreeCode "0"
expect Cmb_Status "2. Preset"
expect Cmb_LinkDept "0"
paste E_FreeCode 20
type E_Name "Water"
focus E_Price1
keys "180"
key Enter
expect-focus C_Salva
key Enter
expect Cmb_PluNumber 124
expect-cell Fg_Plu 17 1 "20"
expect-cell Fg_Plu 17 3 "preset"
expect-cell Fg_Plu 17 7 "1.80"
expect-bytes Dati/PRG_PLU.BIN 826 C2
expect-cell Fg_Plu 18 1 "31"
expect-file Dati/PRG_PLU.BIN size 6214
expect-bytes Dati/PRG_PLU.BIN 1506 20000000000000005761746572202020202020202020202042
expect-bytes Dati/PRG_PLU.BIN 1543 01

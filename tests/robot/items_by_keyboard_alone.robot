# The item editor by keyboard alone: from the number through the fields to Save, and on to the next item.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_PluProgram
screen FrmPrgPlu
expect-focus Cmb_PluNumber
keys "5"
expect E_FreeCode "5"
key Tab
expect-focus E_FreeCode
key Tab
expect-focus E_Name
keys "Flat black"
key Tab
expect-focus E_Price1
key End
keys "0"
key Tab
expect E_Price1 "35.00"
expect-focus E_Price2
key Tab
expect-focus E_StockCount
key Tab
expect-focus Cmb_Status
key Up
expect Cmb_Status "1. Normal"
key Tab
expect-focus Cmb_LinkDept
key Tab
expect-focus Cmb_Tax
key Tab
expect-focus Cmb_TakeOutTax
key Tab
expect-focus Cmb_PluListLink
key Tab
expect-focus Cmb_StockUsed
key Tab
expect-focus C_Salva
key Enter
expect Cmb_PluNumber 6
expect-focus C_Salva
expect-cell Fg_Plu 5 2 "Flat black      "
expect-cell Fg_Plu 5 3 "normal"
expect-cell Fg_Plu 5 7 "35.00"
expect-bytes Dati/PRG_PLU.BIN 1015 01
key Tab
expect-focus C_Erase
key Tab
expect-focus C_Import
key Tab
expect-focus C_Export
key Tab
expect-focus C_Invia_Ecr
key Tab
expect-focus C_Annulla
key Tab
expect-focus Fg_Plu
key Down
expect Cmb_PluNumber 7
expect E_Name "Black tea       "

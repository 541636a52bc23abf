# The list holds each function that has a name, and PO is not among them; the chosen one is shown beside the list.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_AdvancedSetting
screen FrmAdvancedSetting
tab Tab_AdvancedOption 1
expect-count Cmb_KeyList 132
expect L_Preview ""
choose Cmb_KeyList #0
expect Cmb_KeyList "20. DEPT SHIFT, CODE"
expect L_Preview "DEPT SHIFT, CODE"
choose Cmb_KeyList #18
expect Cmb_KeyList "38. RA"
choose Cmb_KeyList #19
expect Cmb_KeyList "40. EC"
choose Cmb_KeyList "49. PAYMENT TRANSFER"
expect L_Preview "PAYMENT TRANSFER"
choose Cmb_KeyList "151. PLU 50"
choose Cmb_KeyList #131
expect Cmb_KeyList "255. NO OPERATION"
expect L_Preview "NO OPERATION"
click L_key2(5)
click L_key2(6)
expect L_key2(5) "NO OPERATION"
expect L_key2(6) "NO OPERATION"
focus Cmb_KeyList
keys "PLU"
expect Cmb_KeyList "255. NO OPERATION"
key Up
expect Cmb_KeyList "151. PLU 50"
expect L_Preview "PLU 50"

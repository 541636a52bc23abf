# Most lists drop typed characters; the tax and the stock choice find their entries.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_PluProgram
focus Cmb_Status
keys "0"
expect Cmb_Status "2. Preset"
focus Cmb_LinkDept
keys "5"
expect Cmb_LinkDept "1"
focus Cmb_TakeOutTax
keys "4"
expect Cmb_TakeOutTax "2. VAT rate 2"
focus Cmb_Tax
keys "4"
expect Cmb_Tax "4. VAT rate 4"
focus Cmb_StockUsed
keys "0"
expect Cmb_StockUsed "0. No"

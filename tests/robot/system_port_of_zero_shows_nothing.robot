# A port byte of 0 shows an empty list, and a save writes 0 back; the byte behind the two ports stays.
poke register/PRG_MODE.BIN 326 000377
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_SystemOption
expect Cmb_ComPort1 ""
expect Cmb_ComPort2 "3. Card terminal"
expect-items Cmb_ComPort1 "1. PC" "2. Barcode reader" "3. Card terminal"
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 326 000377

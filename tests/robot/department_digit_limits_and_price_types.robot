# Each digit limit and each price type sets its bits and clears the others.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_DepartmentProgram
choose Cmb_DepartmentNumber 30
choose Cmb_Halo "4. Up to 999.99"
choose Cmb_PriceType "1. Normal"
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 979 480101
row Fg_Department 30
choose Cmb_Halo "3. Up to 99.99"
choose Cmb_PriceType "2. Preset"
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 979 380201
row Fg_Department 30
choose Cmb_Halo "2. Up to 9.99"
choose Cmb_PriceType "0. Open"
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 979 280001
row Fg_Department 30
choose Cmb_Halo "1. Up to 0.99"
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 979 180001
row Fg_Department 30
choose Cmb_Halo "0. No limit"
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 979 080001
row Fg_Department 30
expect Cmb_Halo "0. No limit"

# The changed byte says whether the department was changed on the screen before the save: not by looking at it, not by
# choosing what it has already; but by any change, also one that was taken back. The next save clears it.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_DepartmentProgram
row Fg_Department 5
choose Cmb_Tax "2. VAT rate 2"
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 431 00
row Fg_Department 5
choose Cmb_Tax "4. VAT rate 4"
choose Cmb_Tax "2. VAT rate 2"
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 429 08000103020300000000
row Fg_Department 5
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 431 00

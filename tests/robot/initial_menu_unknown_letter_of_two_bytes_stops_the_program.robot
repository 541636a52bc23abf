# A language file with a letter of two bytes that the register lacks ends the program at once; nothing is written.
write Setup/Spanish.txt "A\xC3\xB1O\n"
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_SettingMode
click C_Initial_Setup
copy Dati/PRG_MODE.BIN before.bin
choose Cmb_Lingua #1
click C_Salva
box information * Ok
expect-ended
expect-same Dati/PRG_MODE.BIN before.bin

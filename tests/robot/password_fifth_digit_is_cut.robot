# A fifth digit of the X mode password brings the box and goes away.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_PermissionProgram
focus E_XModePasswordSetting
key Ctrl+a
keys "9999"
nobox
keys "1"
box critical "The value is too high. The last digit was removed." Ok
expect E_XModePasswordSetting "9999"
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 32 9999

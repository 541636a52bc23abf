# A password of 0042 keeps its zeros on the screen; it is stored as the number 42.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_PermissionProgram
focus E_TrainingModePasswordSetting
key Ctrl+a
keys "42"
focus E_XModePasswordSetting
expect E_TrainingModePasswordSetting "0042"
focus E_TrainingModePasswordSetting
expect E_TrainingModePasswordSetting "0042"
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 36 4200

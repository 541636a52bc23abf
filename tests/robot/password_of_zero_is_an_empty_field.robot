# A mode password of 0000 is an empty field when it is entered, and 0000 again when it is left.
poke register/PRG_MODE.BIN 32 0000
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_PermissionProgram
expect E_XModePasswordSetting "0000"
focus E_XModePasswordSetting
expect E_XModePasswordSetting ""
focus E_TrainingModePasswordSetting
expect E_XModePasswordSetting "0000"

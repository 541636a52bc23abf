# The manager password takes any text: five digits lose the first, a word ends the save behind the other three.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_PermissionProgram
focus E_ManagerModePassword
key Ctrl+a
keys "12345"
nobox
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 34 4523
focus E_XModePasswordSetting
key Ctrl+a
keys "7"
focus E_ManagerModePassword
key Ctrl+a
keys "abc"
copy Dati/PRG_MODE.BIN before.bin
click C_Salva
expect E_ManagerModePassword "abc"
expect-log "FrmPermissionProgram Salva: Type mismatch"
expect-same Dati/PRG_MODE.BIN before.bin
click C_Annulla
click C_NSProgram
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 32 07004523

# Behind a send the first password has the focus.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_PermissionProgram
screen FrmPermissionProgram
expect-title "Passwords"
expect L_ManagerModePassword "Manager mode password"
expect L_MaxValue(1) "(max. 9999)"
click C_Invia_Ecr
expect-focus E_Prg_ZModePasswordSetting
expect-enabled C_Salva yes

# F1 and the help picture open the manual on each menu; the menu stays.
start
expect E_ComPort 4
click C_Z320
key F1
screen FrmPrincipale
click C_NuovaProgrammazione
box plain * Yes
key F1
screen FrmSetup
click I_Help
screen FrmSetup
click C_ProgramMode
click I_Help
screen FrmProgramMode
click C_Exit
click C_SettingMode
key F1
screen FrmSettingMode
click C_Exit
screen FrmSetup
expect-lines Log/memo_log.txt 1

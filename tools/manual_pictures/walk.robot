# Every screen, and every tab of those that have tabs, with the emulated register on its port.
start
expect E_ComPort 4
picture pictures/FrmPres.png
click C_LinguaSel
picture pictures/FrmLanguage.png
click C_Annulla
click C_Z320
picture pictures/FrmPrincipale.png
click C_ModificaProgrammazione
box plain * Yes
picture pictures/FrmSetup.png
click C_ProgramMode
picture pictures/FrmProgramMode.png
click C_SetVatRate
picture pictures/FrmSetVatRate.png
click C_Annulla
click C_DepartmentProgram
row Fg_Department 5
picture pictures/FrmDepartmentProgram.png
click C_Annulla
click C_NSProgram
picture pictures/FrmNSMenuSetting.png
click C_Annulla
click C_Exit
click C_SettingMode
picture pictures/FrmSettingMode.png

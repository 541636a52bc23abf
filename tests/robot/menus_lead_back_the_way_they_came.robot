# Every screen leads back to the one it was opened from, by its button and by the close box.
start
expect E_ComPort 4
click C_Z320
click C_NuovaProgrammazione
box plain * Yes
screen FrmSetup
click C_ProgramMode
screen FrmProgramMode
click C_SetVatRate
screen FrmSetVatRate
click C_Annulla
screen FrmProgramMode
click C_DepartmentProgram
screen FrmDepartmentProgram
click C_Annulla
screen FrmProgramMode
click C_SetVatRate
close
screen FrmProgramMode
click C_DepartmentProgram
close
screen FrmProgramMode
click C_Exit
screen FrmSetup
click C_ProgramMode
close
screen FrmSetup
click C_SettingMode
screen FrmSettingMode
click C_Exit
screen FrmSetup
click C_SettingMode
close
screen FrmSetup
click C_Exit
screen FrmPrincipale
click C_NuovaProgrammazione
box plain * Yes
screen FrmSetup
close
screen FrmPrincipale
expect-title "Vermanto ECR Programming Tool -   ECRZ320"
close
screen FrmPres
close
expect-ended

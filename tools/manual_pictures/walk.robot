# Every screen, and the tabs of those that have tabs, with the emulated register on its port.
start
expect E_ComPort 4
picture pictures/FrmPres.png
click C_LinguaSel
picture pictures/FrmLanguage.png
click C_Annulla
click C_Z320
picture pictures/FrmPrincipale.png
click C_Logo
picture pictures/FrmSetLogo.png
click C_Annulla
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
click C_DeptGroupProgram
picture pictures/FrmDeptGroupSetting.png
click C_Annulla
click C_PluProgram
row Fg_Plu 8
picture pictures/FrmPrgPlu.png
click C_Annulla
click C_PluPageProgram
picture pictures/FrmPluPageProgram.png
click C_Annulla
click C_PopUpPluList
picture pictures/FrmPopUpPluList.png
click C_Annulla
click C_PercentageProgram
picture pictures/FrmPercentageMenu.png
click C_Annulla
click C_PO_RA_M_P_Key_Program
picture pictures/FrmPORAMPKeyMenu.png
click C_Annulla
click C_TenderProgram
picture pictures/FrmTenderMenuSetting.png
click C_Annulla
click C_NSProgram
picture pictures/FrmNSMenuSetting.png
click C_Annulla
click C_ForeignCurrencyProgram
picture pictures/FrmFCRatingSetting.png
click C_Annulla
click C_ClerkSystemProgram
picture pictures/FrmClerkSystemProgram.png
click C_Annulla
click C_PermissionProgram
picture pictures/FrmPermissionProgram.png
click C_Annulla
click C_InstoreBarcodeSetting
picture pictures/FrmInstoreBarcodeSetting.png
click C_Annulla
click C_SystemOption
picture pictures/FrmSystemOption.png
click C_Annulla
click C_Exit
click C_SettingMode
picture pictures/FrmSettingMode.png
click C_Initial_Setup
picture pictures/FrmInitialMenu.png
click C_Annulla
click C_Working_Mode
picture pictures/FrmWorkingMode.png
click C_Annulla
click C_Print_Out_Mode
picture pictures/FrmPrintMode.png
tab Tab_PrintReceipt 1
picture tabs/FrmPrintMode-1.png
tab Tab_PrintReceipt 2
picture tabs/FrmPrintMode-2.png
tab Tab_PrintReceipt 3
picture tabs/FrmPrintMode-3.png
tab Tab_Print 1
picture tabs/FrmPrintMode-4.png
tab Tab_Print 2
picture tabs/FrmPrintMode-5.png
click C_Annulla
click C_Report_Setup
picture pictures/FrmReportSetup.png
click C_Annulla
click C_EJ_Setup
picture pictures/FrmEJSetup.png
click C_Annulla
click C_Hospitality_Setup
picture pictures/FrmHospitalitySetup.png
click C_Annulla
click C_Clerk_Setup
picture pictures/FrmClerkMenuSetup.png
click C_Annulla
click C_Exit
click C_MessageSetup
picture pictures/FrmCaptionSetting.png
tab Tab_Invoice 1
picture tabs/FrmCaptionSetting-1.png
tab Tab_Invoice 2
picture tabs/FrmCaptionSetting-2.png
tab Tab_Invoice 3
picture tabs/FrmCaptionSetting-3.png
tab Tab_Invoice 4
picture tabs/FrmCaptionSetting-4.png
tab Tab_Print 1
picture tabs/FrmCaptionSetting-5.png
tab Tab_Print 2
picture tabs/FrmCaptionSetting-6.png
click C_Annulla
click C_AdvancedSetting
picture tabs/FrmAdvancedSetting-0.png
tab Tab_AdvancedOption 1
picture pictures/FrmAdvancedSetting.png
tab Tab_AdvancedOption 2
picture tabs/FrmAdvancedSetting-2.png
click C_Annulla
click C_Report
check Chk_Report(4) on
check Chk_Report(5) on
check Chk_Report(7) on
check Chk_Report(9) on
check Chk_Report(12) on
check Chk_Report(16) on
picture pictures/FrmReportExport.png
click C_Export
nobox
click C_View
choose Cmb_File "TIME"
picture tabs/FrmReportView-0.png
tab Tabs 1
picture pictures/FrmReportView.png
choose Cmb_File "FULL EJ"
picture tabs/FrmReportView-2.png

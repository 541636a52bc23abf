# Every screen and tab of the program can be seen and pictured on a Z320.
start
expect E_ComPort 4
picture pictures/FrmPres.png
expect-file pictures/FrmPres.png exists
click C_LinguaSel
picture pictures/FrmLanguage.png
expect-file pictures/FrmLanguage.png exists
click C_Annulla
click C_Z320
picture pictures/FrmPrincipale.png
expect-file pictures/FrmPrincipale.png exists
click C_Logo
picture pictures/FrmSetLogo.png
expect-file pictures/FrmSetLogo.png exists
click C_Annulla
click C_ModificaProgrammazione
box plain * Yes
picture pictures/FrmSetup.png
expect-file pictures/FrmSetup.png exists
click C_ProgramMode
picture pictures/FrmProgramMode.png
expect-file pictures/FrmProgramMode.png exists
click C_SetVatRate
picture pictures/FrmSetVatRate.png
expect-file pictures/FrmSetVatRate.png exists
click C_Annulla
click C_DepartmentProgram
row Fg_Department 5
picture pictures/FrmDepartmentProgram.png
expect-file pictures/FrmDepartmentProgram.png exists
click C_Annulla
click C_DeptGroupProgram
picture pictures/FrmDeptGroupSetting.png
expect-file pictures/FrmDeptGroupSetting.png exists
click C_Annulla
click C_PluProgram
row Fg_Plu 8
picture pictures/FrmPrgPlu.png
expect-file pictures/FrmPrgPlu.png exists
click C_Annulla
click C_PluPageProgram
picture pictures/FrmPluPageProgram.png
expect-file pictures/FrmPluPageProgram.png exists
click C_Annulla
click C_PopUpPluList
picture pictures/FrmPopUpPluList.png
expect-file pictures/FrmPopUpPluList.png exists
tab Tab_PopUpPluList 1
picture tabs/FrmPopUpPluList-1.png
expect-file tabs/FrmPopUpPluList-1.png exists
tab Tab_PopUpPluList 2
picture tabs/FrmPopUpPluList-2.png
expect-file tabs/FrmPopUpPluList-2.png exists
tab Tab_PopUpPluList 3
picture tabs/FrmPopUpPluList-3.png
expect-file tabs/FrmPopUpPluList-3.png exists
tab Tab_PopUpPluList 4
picture tabs/FrmPopUpPluList-4.png
expect-file tabs/FrmPopUpPluList-4.png exists
click C_Annulla
click C_PercentageProgram
picture pictures/FrmPercentageMenu.png
expect-file pictures/FrmPercentageMenu.png exists
click C_Annulla
click C_PO_RA_M_P_Key_Program
picture pictures/FrmPORAMPKeyMenu.png
expect-file pictures/FrmPORAMPKeyMenu.png exists
click C_Annulla
click C_TenderProgram
picture pictures/FrmTenderMenuSetting.png
expect-file pictures/FrmTenderMenuSetting.png exists
tab Tab_Credit 1
picture tabs/FrmTenderMenuSetting-1.png
expect-file tabs/FrmTenderMenuSetting-1.png exists
tab Tab_Credit 2
picture tabs/FrmTenderMenuSetting-2.png
expect-file tabs/FrmTenderMenuSetting-2.png exists
tab Tab_Credit 3
picture tabs/FrmTenderMenuSetting-3.png
expect-file tabs/FrmTenderMenuSetting-3.png exists
tab Tab_Credit 4
picture tabs/FrmTenderMenuSetting-4.png
expect-file tabs/FrmTenderMenuSetting-4.png exists
tab Tab_Credit 5
picture tabs/FrmTenderMenuSetting-5.png
expect-file tabs/FrmTenderMenuSetting-5.png exists
click C_Annulla
click C_NSProgram
picture pictures/FrmNSMenuSetting.png
expect-file pictures/FrmNSMenuSetting.png exists
click C_Annulla
click C_ForeignCurrencyProgram
picture pictures/FrmFCRatingSetting.png
expect-file pictures/FrmFCRatingSetting.png exists
click C_Annulla
click C_ClerkSystemProgram
picture pictures/FrmClerkSystemProgram.png
expect-file pictures/FrmClerkSystemProgram.png exists
click C_Annulla
click C_PermissionProgram
picture pictures/FrmPermissionProgram.png
expect-file pictures/FrmPermissionProgram.png exists
click C_Annulla
click C_InstoreBarcodeSetting
picture pictures/FrmInstoreBarcodeSetting.png
expect-file pictures/FrmInstoreBarcodeSetting.png exists
click C_Annulla
click C_SystemOption
picture pictures/FrmSystemOption.png
expect-file pictures/FrmSystemOption.png exists
click C_Annulla
click C_Exit
click C_SettingMode
picture pictures/FrmSettingMode.png
expect-file pictures/FrmSettingMode.png exists
click C_Initial_Setup
picture pictures/FrmInitialMenu.png
expect-file pictures/FrmInitialMenu.png exists
click C_Annulla
click C_Working_Mode
picture pictures/FrmWorkingMode.png
expect-file pictures/FrmWorkingMode.png exists
click C_Annulla
click C_Print_Out_Mode
picture pictures/FrmPrintMode.png
expect-file pictures/FrmPrintMode.png exists
tab Tab_PrintReceipt 1
picture tabs/FrmPrintMode-1.png
expect-file tabs/FrmPrintMode-1.png exists
tab Tab_PrintReceipt 2
picture tabs/FrmPrintMode-2.png
expect-file tabs/FrmPrintMode-2.png exists
tab Tab_PrintReceipt 3
picture tabs/FrmPrintMode-3.png
expect-file tabs/FrmPrintMode-3.png exists
tab Tab_Print 1
picture tabs/FrmPrintMode-4.png
expect-file tabs/FrmPrintMode-4.png exists
tab Tab_Print 2
picture tabs/FrmPrintMode-5.png
expect-file tabs/FrmPrintMode-5.png exists
click C_Annulla
click C_Report_Setup
picture pictures/FrmReportSetup.png
expect-file pictures/FrmReportSetup.png exists
click C_Annulla
click C_EJ_Setup
picture pictures/FrmEJSetup.png
expect-file pictures/FrmEJSetup.png exists
click C_Annulla
click C_Hospitality_Setup
picture pictures/FrmHospitalitySetup.png
expect-file pictures/FrmHospitalitySetup.png exists
click C_Annulla
click C_Clerk_Setup
picture pictures/FrmClerkMenuSetup.png
expect-file pictures/FrmClerkMenuSetup.png exists
click C_Annulla
click C_Exit
click C_MessageSetup
picture pictures/FrmCaptionSetting.png
expect-file pictures/FrmCaptionSetting.png exists
tab Tab_Invoice 1
picture tabs/FrmCaptionSetting-1.png
expect-file tabs/FrmCaptionSetting-1.png exists
tab Tab_Invoice 2
picture tabs/FrmCaptionSetting-2.png
expect-file tabs/FrmCaptionSetting-2.png exists
tab Tab_Invoice 3
picture tabs/FrmCaptionSetting-3.png
expect-file tabs/FrmCaptionSetting-3.png exists
tab Tab_Invoice 4
picture tabs/FrmCaptionSetting-4.png
expect-file tabs/FrmCaptionSetting-4.png exists
tab Tab_Print 1
picture tabs/FrmCaptionSetting-5.png
expect-file tabs/FrmCaptionSetting-5.png exists
tab Tab_Print 2
picture tabs/FrmCaptionSetting-6.png
expect-file tabs/FrmCaptionSetting-6.png exists
click C_Annulla
click C_AdvancedSetting
picture tabs/FrmAdvancedSetting-0.png
expect-file tabs/FrmAdvancedSetting-0.png exists
tab Tab_AdvancedOption 1
picture pictures/FrmAdvancedSetting.png
expect-file pictures/FrmAdvancedSetting.png exists
tab Tab_AdvancedOption 2
picture tabs/FrmAdvancedSetting-2.png
expect-file tabs/FrmAdvancedSetting-2.png exists
click C_Annulla
click C_Report
check Chk_Report(4) on
check Chk_Report(5) on
check Chk_Report(7) on
check Chk_Report(9) on
check Chk_Report(12) on
check Chk_Report(16) on
picture pictures/FrmReportExport.png
expect-file pictures/FrmReportExport.png exists
click C_Export
nobox
click C_View
choose Cmb_File "TIME"
picture tabs/FrmReportView-0.png
expect-file tabs/FrmReportView-0.png exists
tab Tabs 1
picture pictures/FrmReportView.png
expect-file pictures/FrmReportView.png exists
choose Cmb_File "FULL EJ"
picture tabs/FrmReportView-2.png
expect-file tabs/FrmReportView-2.png exists

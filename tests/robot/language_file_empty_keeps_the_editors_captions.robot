# The same in the menus and the editors, with their choices and the limit's message.
write Setup/FrmDescEng.txt ""
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
screen FrmSetup
expect-title "Vermanto ECR programming Utility"
expect C_ProgramMode "Program Mode"
expect C_SettingMode "Setup Mode"
expect C_MessageSetup "Caption Setup Mode"
expect C_Report "Reports"
expect C_AdvancedSetting "Advanced Setting"
expect C_Reset "RESET"
expect C_Exit "BACK"
click C_Reset
box plain "Are you sure you want to RESET the cash register?" No
click C_ProgramMode
expect-title "Program Mode"
expect C_SetVatRate "Set VAT Rate"
expect C_DepartmentProgram "Program Departments"
expect C_DeptGroupProgram "Program Dept. Groups"
expect C_PluProgram "Program PLUs"
expect C_PluPageProgram "Program PLU Pages"
expect C_PercentageProgram "Program % Key"
expect C_PO_RA_M_P_Key_Program "Program PO, RA, +/- Keys"
expect C_TenderProgram "Program Payment Media"
expect C_NSProgram "Program #/NS key"
expect C_ForeignCurrencyProgram "Program Foreign Currencies "
expect C_ClerkSystemProgram "Program Clerk System"
expect C_PermissionProgram "Set Passwords"
expect C_InstoreBarcodeSetting "Program Instore Barcodes"
expect C_SystemOption "System Options"
expect C_PopUpPluList "Program Pop Up Plu LIST"
expect C_Custom_Import "Customization Import"
expect C_Exit "Back"
click C_SetVatRate
expect-title "Set VAT Rate"
expect L_Titolo "SET VAT RATE"
expect L_VatRate(1) "VAT Rate 1:"
expect L_VatRate(2) "VAT Rate 2:"
expect L_VatRate(3) "VAT Rate 3"
expect L_VatRate(4) "VAT Rate 4"
expect L_MaxValue(1) "(Max Value 99999)"
expect L_MaxValue(4) "(Max Value 99999)"
expect C_Salva "Save Setup"
expect C_Annulla "Back"
expect C_Invia_Ecr "Send to ECR"
type E_VatRate(2) "0"
keys "0"
box critical "Value insert to high!" Ok
register answer 4097 0
click C_Invia_Ecr
box critical "Programmation sending Failed" Ok
click C_Annulla
click C_Exit
click C_SettingMode
expect-title "Setup Mode"
expect C_Initial_Setup "Initial Setup"
expect C_Working_Mode "Operating Mode"
expect C_Print_Out_Mode "Print Mode"
expect C_Report_Setup "Report Setup"
expect C_EJ_Setup "EJ Setup"
expect C_Hospitality_Setup "Hospitality Setup"
expect C_Clerk_Setup "Clerk Setup"
expect C_Exit "BACK"

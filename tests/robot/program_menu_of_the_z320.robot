# The program menu of the Z320 has fifteen editors and the import.
start
expect E_ComPort 4
click C_Z320
click C_NuovaProgrammazione
box plain * Yes
click C_ProgramMode
screen FrmProgramMode
expect-title "Program mode"
expect C_SetVatRate "VAT rates"
expect C_DepartmentProgram "Departments"
expect C_DeptGroupProgram "Department groups"
expect C_PluProgram "PLUs"
expect C_PluPageProgram "PLU pages"
expect C_PercentageProgram "Percentage keys"
expect C_PO_RA_M_P_Key_Program "PO, RA and +/- keys"
expect C_TenderProgram "Payment media"
expect C_NSProgram "#/NS key"
expect C_ForeignCurrencyProgram "Foreign currencies"
expect C_ClerkSystemProgram "Clerks"
expect C_PermissionProgram "Passwords"
expect C_InstoreBarcodeSetting "In-store barcodes"
expect C_SystemOption "System options"
expect C_PopUpPluList "Pop-up PLU lists"
expect C_Custom_Import "Customization Import"
expect C_Exit "Back"
expect-visible C_SetVatRate yes
expect-visible C_DepartmentProgram yes
expect-visible C_DeptGroupProgram yes
expect-visible C_PluProgram yes
expect-visible C_PluPageProgram yes
expect-visible C_PercentageProgram yes
expect-visible C_PO_RA_M_P_Key_Program yes
expect-visible C_TenderProgram yes
expect-visible C_NSProgram yes
expect-visible C_ForeignCurrencyProgram yes
expect-visible C_ClerkSystemProgram yes
expect-visible C_PermissionProgram yes
expect-visible C_InstoreBarcodeSetting yes
expect-visible C_SystemOption yes
expect-visible C_PopUpPluList yes
expect-visible C_Custom_Import yes

# The Z300 has no PLU pages: fourteen editors show.
start
expect E_ComPort 4
click C_Z300
click C_NuovaProgrammazione
box plain * Yes
click C_ProgramMode
screen FrmProgramMode
expect-visible C_PluPageProgram no
expect-visible C_SetVatRate yes
expect-visible C_DepartmentProgram yes
expect-visible C_DeptGroupProgram yes
expect-visible C_PluProgram yes
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

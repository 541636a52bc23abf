# The setting menu: seven buttons on the Z320; the Z300 has no hospitality setup.
start
expect E_ComPort 4
click C_Z320
click C_NuovaProgrammazione
box plain * Yes
click C_SettingMode
screen FrmSettingMode
expect-title "Setup mode"
expect C_Initial_Setup "Initial setup"
expect C_Working_Mode "Operating mode"
expect C_Print_Out_Mode "Print mode"
expect C_Report_Setup "Report setup"
expect C_EJ_Setup "EJ setup"
expect C_Hospitality_Setup "Hospitality setup"
expect C_Clerk_Setup "Clerk setup"
expect C_Exit "Back"
expect-visible C_Hospitality_Setup yes
click C_Exit
click C_Exit
click C_Back
click C_Z300
click C_NuovaProgrammazione
box plain * Yes
click C_SettingMode
screen FrmSettingMode
expect-visible C_Hospitality_Setup no
expect-visible C_Initial_Setup yes
expect-visible C_Working_Mode yes
expect-visible C_Print_Out_Mode yes
expect-visible C_Report_Setup yes
expect-visible C_EJ_Setup yes
expect-visible C_Clerk_Setup yes

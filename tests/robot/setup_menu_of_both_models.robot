# The Setup menu: its buttons and their English captions. The export shows with DEBUG only.
start
expect E_ComPort 4
click C_Z320
click C_NuovaProgrammazione
box plain * Yes
screen FrmSetup
expect-title "Vermanto ECR programming Utility"
expect C_ProgramMode "Program mode"
expect C_SettingMode "Setup mode"
expect C_MessageSetup "Caption setup"
expect C_Report "Reports"
expect C_AdvancedSetting "Advanced settings"
expect C_Reset "Reset"
expect C_Exit "Back"
expect-visible C_MessageSetup yes
expect-visible C_Report yes
expect-visible C_AdvancedSetting yes
expect-visible C_ExportCaption no
click C_Exit
click C_Back
click C_Z300
click C_NuovaProgrammazione
box plain * Yes
screen FrmSetup
expect-visible C_MessageSetup yes
expect-visible C_Report yes
expect-visible C_AdvancedSetting yes
expect-visible C_Reset yes

# Each setting screen closes by its Back button and by the window's close box, back to the setting menu; what was
# chosen and not saved is dropped.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_SettingMode
copy Dati/PRG_MODE.BIN before.bin
click C_Initial_Setup
screen FrmInitialMenu
key Down
click C_Annulla
screen FrmSettingMode
click C_Initial_Setup
close
screen FrmSettingMode
click C_Working_Mode
screen FrmWorkingMode
key Down
click C_Annulla
screen FrmSettingMode
click C_Working_Mode
close
screen FrmSettingMode
click C_Print_Out_Mode
screen FrmPrintMode
key Down
click C_Annulla
screen FrmSettingMode
click C_Print_Out_Mode
close
screen FrmSettingMode
click C_Report_Setup
screen FrmReportSetup
key Down
click C_Annulla
screen FrmSettingMode
click C_Report_Setup
close
screen FrmSettingMode
click C_EJ_Setup
screen FrmEJSetup
key Down
click C_Annulla
screen FrmSettingMode
click C_EJ_Setup
close
screen FrmSettingMode
click C_Hospitality_Setup
screen FrmHospitalitySetup
key Down
click C_Annulla
screen FrmSettingMode
click C_Hospitality_Setup
close
screen FrmSettingMode
click C_Clerk_Setup
screen FrmClerkMenuSetup
key Down
click C_Annulla
screen FrmSettingMode
click C_Clerk_Setup
close
screen FrmSettingMode
expect-same Dati/PRG_MODE.BIN before.bin

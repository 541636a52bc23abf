# The save of the hospitality setup writes no file: a send behind it sends the old one, and the save of another screen
# brings the change along.
poke register/PRG_MODE.BIN 0 0001010001010001000040E8010601070FA0C02100
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_SettingMode
click C_Hospitality_Setup
copy Dati/PRG_MODE.BIN before.bin
choose Cmb_ExclusiveClerk "0. Yes"
choose Cmb_TableCompulsory "0. Yes"
click C_Salva
screen FrmHospitalitySetup
expect-same Dati/PRG_MODE.BIN before.bin
click C_Invia_Ecr
screen FrmHospitalitySetup
expect-bytes register/PRG_MODE.BIN 11 E801
click C_Annulla
expect-same Dati/PRG_MODE.BIN before.bin
click C_Hospitality_Setup
expect Cmb_ExclusiveClerk "0. Yes"
expect Cmb_TableCompulsory "0. Yes"
click C_Annulla
click C_Report_Setup
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 11 A800

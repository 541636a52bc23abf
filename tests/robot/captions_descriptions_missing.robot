# Without DescCaption.ini a warning comes, the definitions stay empty, the captions are there all the same and a save keeps them.
delete Setup/DescCaption.ini
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_MessageSetup

box warning * Ok
screen FrmCaptionSetting
expect-cell FG_Caption 1 0 ""
expect-cell FG_Caption 1 1 "TOTAL     "
expect-cell FG_Caption 78 1 "END       "
expect L_Other(0) "Other #1"
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 4235 544F54414C2020202020
expect-bytes Dati/PRG_MODE.BIN 5005 454E4420202020202020

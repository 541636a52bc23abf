# A save writes all nine means of payment, also those that nobody touched: names lose the blanks in front of them.
poke register/PRG_MODE.BIN 3103 202058202020202020202020
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_TenderProgram
expect E_Name(8) "X"
type E_Name(0) "Bar"
click C_Salva
screen FrmTenderMenuSetting
expect-bytes Dati/PRG_MODE.BIN 2991 426172202020202020202020
expect-bytes Dati/PRG_MODE.BIN 3103 582020202020202020202020

# A grand total of 16 digits loses its last digits when its field is merely entered and left.
poke register/PRG_MODE.BIN 3129 5634129078563412
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_SystemOption
expect E_GTCounterSetting "1234567890123456"
expect-maxlength E_GTCounterSetting 16
focus E_GTCounterSetting
expect E_GTCounterSetting "1.23456789012346E+15"
focus E_InvoiceNumber
expect E_GTCounterSetting "1234567890123460"
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 3129 6034129078563412

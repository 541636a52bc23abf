# The largest grand total is shown and saved exactly as long as nobody enters its field.
poke register/PRG_MODE.BIN 3129 9999999999999999
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_SystemOption
expect E_GTCounterSetting "9999999999999999"
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 3129 9999999999999999

# Opening the currencies trims their names in memory: the next save of another screen writes them so.
poke register/PRG_MODE.BIN 2927 202059454E2020202020
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_ForeignCurrencyProgram
expect E_Name(0) "YEN"
expect-bytes Dati/PRG_MODE.BIN 2927 202059454E2020202020
click C_Annulla
click C_NSProgram
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 2927 59454E20202020202020

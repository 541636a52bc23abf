# A stored code that a list lacks selects nothing; a save then stores zero.
poke register/PRG_MODE.BIN 174 0403
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_MessageSetup

tab Tab_Print 2
expect Cmb_WaitTime ""
expect Cmb_ScrollSpeed ""
expect-count Cmb_WaitTime 4
expect-bytes Dati/PRG_MODE.BIN 174 0403
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 174 0000

# A digit limit that the list does not have shows nothing, and a save stores 0.
poke register/PRG_MODE.BIN 3017 05
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_TenderProgram
expect Cmb_Halo(1) ""
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 3017 00

# A digit limit of 5 shows an empty list, and a save stores 0.
poke register/PRG_MODE.BIN 62 05
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_PO_RA_M_P_Key_Program
expect Cmb_RAKeyHDLOSetting ""
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 62 00

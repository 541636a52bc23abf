# "RHE:05:2:" alone blanks header line 5; the file changes with the next save, of whatever editor.
write bakery.txt "RHE:05:2:\r\n"
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode

click C_Custom_Import
file bakery.txt
nobox
screen FrmProgramMode
expect-same Dati/PRG_MODE.BIN register/PRG_MODE.BIN
click C_SetVatRate
click C_Salva
click C_Annulla
expect-bytes Dati/PRG_MODE.BIN 3353 202020202020202020202020202020202020202020202020
expect-bytes Dati/PRG_MODE.BIN 3329 4E657720546F776E20202020202020202020202020202020
click C_Exit
click C_MessageSetup
expect E_ReceiptHeader(4) "                        "
expect T_Hraw5 "                        "

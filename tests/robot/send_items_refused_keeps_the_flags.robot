# The items are refused: the flags stay in the file, so that they count again.
poke register/PRG_PLU.BIN 839 01
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_SetVatRate
register answer 4097 1
click C_Invia_Ecr
box critical * Ok
screen FrmSetVatRate
expect-bytes Dati/PRG_PLU.BIN 839 01

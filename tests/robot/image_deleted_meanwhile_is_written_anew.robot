# The image's file has gone: a save makes it again, whole.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_SetVatRate
delete Dati/PRG_MODE.BIN
click C_Salva
expect-same Dati/PRG_MODE.BIN register/PRG_MODE.BIN

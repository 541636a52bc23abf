# Two items are flagged as changed: behind the send the program waits 1.4 seconds for each, and clears the flags in the
# file. The register was sent them with the flags.
poke register/PRG_PLU.BIN 839 01
poke register/PRG_PLU.BIN 971 01
copy register/PRG_PLU.BIN flagged.bin
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_SetVatRate
expect-bytes Dati/PRG_PLU.BIN 839 01
click C_Invia_Ecr
screen FrmSetVatRate
expect-same register/PRG_PLU.BIN flagged.bin
expect-same Dati/PRG_PLU.BIN register/samples/Z320/PRG_PLU.BIN

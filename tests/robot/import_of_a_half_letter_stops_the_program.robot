# A letter of two bytes that the register lacks stops the program in an import too.
write utf8.txt "RHE:01:2:caf\xC3\xA9"
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode

click C_Custom_Import
file utf8.txt
expect-ended
expect-same Dati/PRG_MODE.BIN register/PRG_MODE.BIN

# Nothing answers before the send: the wrong-register message, and the program ends at once. The file is as it was last
# written.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_SetVatRate
paste E_VatRate(1) 15000
click C_Salva
register off
click C_Invia_Ecr
box plain "The cash register or its programming does not match the chosen model, or the register does not answer.\nCheck the cable, the port and the model on the start screen, then try again." Ok
expect-ended
expect-log "Get_Release error. Code: 401 Desc: The USB-COM port cannot be opened."
expect-no-log "End Programm"
expect-bytes Dati/PRG_MODE.BIN 38 00500100
expect-bytes register/PRG_MODE.BIN 38 00200200

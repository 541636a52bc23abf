# A pasted rate of nine digits does not fit four bytes: the first eight of its digits are written, and the log tells.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_SetVatRate
paste E_VatRate(1) 123456789
click C_Salva
expect-log "number_to_bcds : Index out of range"
expect-bytes Dati/PRG_MODE.BIN 38 8967452300000100

# A pasted word is no number: it stays as it is when the field is left, and Save writes nothing. The log tells of both.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_SetVatRate
focus E_VatRate(3)
paste E_VatRate(3) "seven"
focus E_VatRate(4)
expect E_VatRate(3) "seven"
expect-log "FrmSetVatRate E_VatRate(3): Type mismatch"
click C_Salva
expect-log "FrmSetVatRate Salva: Type mismatch"
expect-same Dati/PRG_MODE.BIN register/PRG_MODE.BIN

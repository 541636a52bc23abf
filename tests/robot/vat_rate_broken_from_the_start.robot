# A rate whose first digit is broken cannot be shown at all: the log tells, and the screen stays up with what it has.
poke register/PRG_MODE.BIN 42 1A000000
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_SetVatRate
screen FrmSetVatRate
expect-log "bcds_to_number Type mismatch"
expect-log "FrmSetVatRate Form_load: Type mismatch"
expect E_VatRate(1) "22.000 %"
expect E_VatRate(2) ""
click C_Salva
expect-log "FrmSetVatRate Salva: Type mismatch"
expect-same Dati/PRG_MODE.BIN register/PRG_MODE.BIN

# A rate whose first digit is broken cannot be shown at all: the log tells, the other rates are shown and can be saved,
# and the broken bytes stay until someone types a rate over them.
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
expect E_VatRate(3) "5.000 %"
expect E_VatRate(4) "4.000 %"
click C_Salva
expect-same Dati/PRG_MODE.BIN register/PRG_MODE.BIN

# By the Tab key over the empty field, and another rate behind it.
focus E_VatRate(1)
key Tab 2
expect-focus E_VatRate(3)
expect E_VatRate(2) ""
key Ctrl+a
keys "6000"
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 42 1A00000000600000
type E_VatRate(2) "10000"
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 42 0000010000600000

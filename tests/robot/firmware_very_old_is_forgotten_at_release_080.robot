# The banner of release 0.80, exactly, or no register at all, makes the program forget the very old one. A banner with
# other blanks does not.
register release none
start
expect E_ComPort 4
click C_Z320
click C_Back
register release RELEASE.BIN
register banner "ECRZ300/ECRZ320F    FW rel.0.80    ."
click C_Z320
click C_NuovaProgrammazione
box plain * Yes
expect-log "Selected new ecr with very old fw release"
box plain * Ok
click C_Back
register banner "ECRZ300/ECRZ320F    FW rel.0.80     "
click C_Z320
click C_NuovaProgrammazione
box plain * Yes
screen FrmSetup
expect-same Dati/PRG_MODE.BIN Dati/ECRZ320/ECRZ320_PRG_MODE.BIN

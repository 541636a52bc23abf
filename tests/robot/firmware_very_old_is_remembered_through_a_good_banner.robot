# Once a very old register was met, a register with a current firmware behind it does not change that: a new programming
# still copies nothing.
register release none
start
expect E_ComPort 4
click C_Z320
click C_Back
register release RELEASE.BIN
click C_Z320
expect L_Release_Fw "ECRZ300/ECRZ320F    FW rel.1.04     "
click C_NuovaProgrammazione
box plain * Yes
expect-log "Selected new ecr with very old fw release"
box plain * Ok
screen FrmPrincipale

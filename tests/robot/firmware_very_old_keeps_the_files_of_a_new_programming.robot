# A register that answers but has no release file is a very old one: a new programming copies no defaults and works on
# the files that are there.
register release none
copy register/PRG_MODE.BIN Dati/PRG_MODE.BIN
copy register/PRG_PLU.BIN Dati/PRG_PLU.BIN
start
expect E_ComPort 4
click C_Z320
screen FrmPrincipale
expect-log "Get_Release error. Code: 1002 Desc: The error was returned from the ECR side."
expect L_Release_Fw ""
click C_NuovaProgrammazione
box plain * Yes
screen FrmSetup
expect-log "Selected new ecr with very old fw release"
expect-same Dati/PRG_MODE.BIN register/PRG_MODE.BIN
expect-same Dati/PRG_PLU.BIN register/PRG_PLU.BIN

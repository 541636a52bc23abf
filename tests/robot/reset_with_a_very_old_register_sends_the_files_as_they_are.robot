# A very old register: the reset lays no defaults down, and what is sent is the programming in the files. The link check
# fails on such a register, so the program ends.
register release none
copy register/PRG_MODE.BIN Dati/PRG_MODE.BIN
copy register/PRG_PLU.BIN Dati/PRG_PLU.BIN
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * No
click C_Reset
box plain * Yes
box plain "The cash register or its programming does not match the chosen model, or the register does not answer.\nCheck the cable, the port and the model on the start screen, then try again." Ok
expect-ended
expect-log "Selected new ecr with very old fw release"
expect-same Dati/PRG_MODE.BIN register/PRG_MODE.BIN

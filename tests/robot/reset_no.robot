# No to the question: neither the files nor the register change, and nothing is asked of it.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
forget-calls
click C_Reset
box plain * No
screen FrmSetup
expect-calls 0
expect-same Dati/PRG_MODE.BIN register/samples/Z320/PRG_MODE.BIN
expect-same register/PRG_MODE.BIN register/samples/Z320/PRG_MODE.BIN

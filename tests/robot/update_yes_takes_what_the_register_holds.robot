# The register's programming is taken: image and items, byte for byte, with one question whether it answers and one call
# for each file.
start
expect E_ComPort 4
click C_Z320
forget-calls
click C_ModificaProgrammazione
box plain "Read the settings from the cash register?\nYes: read them now.\nNo: continue with those kept on this PC." Yes
screen FrmSetup
expect-calls 3
expect-call 1 "send_cmd folder=. direction=0 file=12 timeout=2 port=4"
expect-call 2 "send_cmd folder=. direction=0 file=0 timeout=120 port=4"
expect-call 3 "send_cmd folder=. direction=0 file=1 timeout=180 port=4"
expect-same Dati/PRG_MODE.BIN register/PRG_MODE.BIN
expect-same Dati/PRG_PLU.BIN register/PRG_PLU.BIN
expect-file Dati/PRG_MODE.BIN size 5656
click C_ProgramMode
click C_SetVatRate
expect E_VatRate(1) "22.000 %"

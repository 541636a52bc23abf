# Reset lays the model's default files down and sends the image, then the items. The items that go into the item file
# behind the send are those in memory, not the defaults.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
copy Dati/PRG_PLU.BIN items_before.bin
forget-calls
click C_Reset
expect-box-title "Reset the cash register"
box plain "Reset the cash register?\nAll its settings and items will be replaced by the defaults." Yes
screen FrmSetup
expect-same Dati/PRG_MODE.BIN Dati/ECRZ320/ECRZ320_PRG_MODE.BIN
expect-same register/PRG_MODE.BIN Dati/ECRZ320/ECRZ320_PRG_MODE.BIN
expect-same register/PRG_PLU.BIN Dati/ECRZ320/ECRZ320_PRG_PLU.BIN
expect-same Dati/PRG_PLU.BIN items_before.bin
expect-calls 4
expect-call 1 "send_cmd folder=. direction=0 file=22 timeout=3 port=4"
expect-call 2 "send_cmd folder=. direction=1 file=0 timeout=120 port=4"
expect-call 3 "send_cmd folder=. direction=0 file=22 timeout=3 port=4"
expect-call 4 "send_cmd folder=. direction=1 file=1 timeout=180 port=4"

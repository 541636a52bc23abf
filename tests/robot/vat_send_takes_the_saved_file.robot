# Save and send: the link check, the image, the check again, the items. The register holds exactly the new bytes, and
# nothing is said.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_SetVatRate
paste E_VatRate(1) 22500
click C_Salva
forget-calls
click C_Invia_Ecr
screen FrmSetVatRate
expect-calls 4
expect-call 1 "send_cmd folder=. direction=0 file=22 timeout=3 port=4"
expect-call 2 "send_cmd folder=. direction=1 file=0 timeout=120 port=4"
expect-call 3 "send_cmd folder=. direction=0 file=22 timeout=3 port=4"
expect-call 4 "send_cmd folder=. direction=1 file=1 timeout=180 port=4"
expect-bytes register/PRG_MODE.BIN 38 00250200
expect-same register/PRG_MODE.BIN Dati/PRG_MODE.BIN
expect-same register/PRG_PLU.BIN Dati/PRG_PLU.BIN
expect-file Dati/PRG_MODE_SAV.BIN missing
expect-enabled C_Salva yes
expect-enabled C_Annulla yes
expect-enabled C_Invia_Ecr yes
copy register/PRG_MODE.BIN new.bin
poke new.bin 38 00200200
expect-same new.bin register/samples/Z320/PRG_MODE.BIN

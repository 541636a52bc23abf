# Enter in a rate leaves it and goes to Save; Enter on Save saves. The screen stays as it is.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_SetVatRate
focus E_VatRate(1)
key Ctrl+a
keys "15000"
expect-bytes Dati/PRG_MODE.BIN 38 00200200
key Enter
expect-focus C_Salva
expect E_VatRate(1) "15 %"
expect-bytes Dati/PRG_MODE.BIN 38 00200200
key Enter
screen FrmSetVatRate
expect-bytes Dati/PRG_MODE.BIN 38 00500100

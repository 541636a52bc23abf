# A folder has taken the image's name: a save fails in silence and the screen stays. What was saved is in memory all the
# same.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_SetVatRate
delete Dati/PRG_MODE.BIN
make-folder Dati/PRG_MODE.BIN
paste E_VatRate(1) 15000
click C_Salva
screen FrmSetVatRate
expect-file Dati/PRG_MODE.BIN folder
expect-lines Log/memo_log.txt 1
click C_Annulla
click C_SetVatRate
expect E_VatRate(1) "15.000 %"
delete Dati/PRG_MODE.BIN
click C_Salva
expect-file Dati/PRG_MODE.BIN size 5656
expect-bytes Dati/PRG_MODE.BIN 38 00500100

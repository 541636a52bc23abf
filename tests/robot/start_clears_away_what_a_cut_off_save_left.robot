# What a save that the power cut off has left beside its file is gone after the next start. Files that somebody made stay.
copy register/PRG_MODE.BIN Dati/PRG_MODE.BIN
write Dati/PRG_MODE.BIN.K4W4Se "half a programming"
write Dati/PRG_MODE.BIN.backup "a copy of the owner's"
write Setup/Language.ini.B7Q0Zx ""
write Report/CLERK.csv.K4W4Se "not where the program saves"
start
expect E_ComPort 4
expect-file Dati/PRG_MODE.BIN.K4W4Se missing
expect-file Setup/Language.ini.B7Q0Zx missing
expect-file Dati/PRG_MODE.BIN.backup exists
expect-file Report/CLERK.csv.K4W4Se exists
expect-file Dati/PRG_MODE.BIN size 5656
expect-log "Removed what a save that was cut off had left: PRG_MODE.BIN.K4W4Se"

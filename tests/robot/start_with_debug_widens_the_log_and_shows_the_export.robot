# DEBUG on the command line: each tried port is in the log, and the Setup menu shows the caption export.
register ports 3 4
register on 4
start DEBUG
expect E_ComPort 4
expect-log "Test COM 3 KO"
expect-log "Test COM 4 OK"
click C_Z320
click C_NuovaProgrammazione
box plain * Yes
screen FrmSetup
expect-visible C_ExportCaption yes
expect C_ExportCaption "Export_Caption"

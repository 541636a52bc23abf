# DEBUG counts as the whole command line only: no debug lines, no export button.
start "DEBUG STOP"
screen FrmPres
expect E_ComPort 4
expect-no-log "Test COM 4 OK"
click C_Z320
click C_NuovaProgrammazione
box plain * Yes
screen FrmSetup
expect-visible C_ExportCaption no

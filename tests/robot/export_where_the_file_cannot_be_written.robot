# Where caption.txt cannot be written the Setup menu stays and the log says why.
make-folder Setup/caption.txt
start DEBUG
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes

click C_ExportCaption
nobox
screen FrmSetup
expect-log-like "Export_Caption: *"

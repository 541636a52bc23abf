# The manual is not installed: F1 shows nothing, and the log says so.
delete help
start
expect E_ComPort 4
key F1
expect-log-like "Help: no manual in *help\\eng\\"
screen FrmPres

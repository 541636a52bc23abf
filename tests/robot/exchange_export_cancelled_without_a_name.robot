# An export that is cancelled before any file was named ends in a failed open, which is logged.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_PluProgram
click C_Export
file cancel
screen FrmPrgPlu
nobox
expect-log-like "FrmPrgPlu Errore: *"

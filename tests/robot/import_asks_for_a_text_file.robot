# The import asks for a text file; cancelled it does nothing.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode

expect-enabled C_Custom_Import yes
mark-log
click C_Custom_Import
expect-chooser "File Import Selection" "File (*.txt)|*.txt"
file cancel
nobox
screen FrmProgramMode
expect-same Dati/PRG_MODE.BIN register/PRG_MODE.BIN

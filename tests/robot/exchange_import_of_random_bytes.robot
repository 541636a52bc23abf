# A file of any bytes: no message, and the program goes on.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_PluProgram
click C_Import
file Setup/ECRZ320.png
screen FrmPrgPlu
nobox
row Fg_Plu 5
click C_Salva
screen FrmPrgPlu

# F1 in the middle of typing a price: the manual opens beside it, the bare digits stay, and typing goes on.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_DepartmentProgram
focus E_Price
keys "12"
key F1
screen FrmDepartmentProgram
expect E_Price "12"
keys "34"
expect E_Price "1234"
click I_Help
screen FrmDepartmentProgram
expect-lines Log/memo_log.txt 1

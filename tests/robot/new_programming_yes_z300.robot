# The same for the Z300, with its own default files.
start
expect E_ComPort 4
click C_Z300
click C_NuovaProgrammazione
box plain * Yes
screen FrmSetup
expect-same Dati/PRG_MODE.BIN Dati/ECRZ300/ECRZ300_PRG_MODE.BIN
expect-same Dati/PRG_PLU.BIN Dati/ECRZ300/ECRZ300_PRG_PLU.BIN
click C_ProgramMode
click C_DepartmentProgram
expect E_DeptName "GROCERY     "

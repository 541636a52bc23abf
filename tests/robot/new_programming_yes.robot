# A new programming starts from the model's default files, whatever the register holds. Nothing is asked of the register.
poke Dati/PRG_MODE.BIN 0 0102
poke Dati/PRG_PLU.BIN 0 0102
start
expect E_ComPort 4
click C_Z320
forget-calls
click C_NuovaProgrammazione
box plain "Start again from the default settings?\nThe settings and items kept on this PC will be replaced." Yes
screen FrmSetup
expect-same Dati/PRG_MODE.BIN Dati/ECRZ320/ECRZ320_PRG_MODE.BIN
expect-same Dati/PRG_PLU.BIN Dati/ECRZ320/ECRZ320_PRG_PLU.BIN
expect-calls 0
click C_ProgramMode
click C_DepartmentProgram
expect E_DeptName "STARTERS    "

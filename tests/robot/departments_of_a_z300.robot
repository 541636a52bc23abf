# The departments of a Z300 are shown, changed, saved and sent the same way.
register model Z300
start
expect E_ComPort 4
click C_Z300
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_DepartmentProgram
expect E_DeptName "Bread       "
row Fg_Department 19
expect E_DeptName "Carrier bag "
expect Cmb_Status2 "1. Single item"
expect Cmb_PriceType "2. Preset"
expect E_Price "0.20"
row Fg_Department 20
expect E_DeptName "ChriststØlle"
row Fg_Department 16
expect Cmb_Halo "3. Up to 99.99"
choose Cmb_Halo "1. Up to 0.99"
click C_Salva
expect Cmb_DepartmentNumber 17
expect-bytes Dati/PRG_MODE.BIN 659 4E657773706170657273202018000107040400000000
click C_Invia_Ecr
screen FrmDepartmentProgram
expect-same register/PRG_MODE.BIN Dati/PRG_MODE.BIN

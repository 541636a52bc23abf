# A folder has taken the image's name: the save fails in silence, and the walk goes on.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_DepartmentProgram
delete Dati/PRG_MODE.BIN
make-folder Dati/PRG_MODE.BIN
type E_DeptName "Nowhere"
click C_Salva
nobox
expect Cmb_DepartmentNumber 2
expect-cell Fg_Department 1 1 "Nowhere     "
expect-file Dati/PRG_MODE.BIN folder

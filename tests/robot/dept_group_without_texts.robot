# Without the catalogue the group screen has its built-in captions.
write Setup/FrmDescEng.txt ""
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_DeptGroupProgram
expect-title "Program Dept. Groups"
expect L_Titolo "PROGRAM DEPT. GROUPS"
expect L_DeptGroupNumber "Dept Group Number"
expect L_Name "Name"

# From the Setup menu to an editor and back by keyboard. Closing an editor leaves the focus on its button.
start
expect E_ComPort 4
click C_Z320
click C_NuovaProgrammazione
box plain * Yes
expect-focus C_ProgramMode
key Enter
screen FrmProgramMode
expect-focus C_SetVatRate
key Enter
screen FrmSetVatRate
expect-focus C_Annulla
key Enter
screen FrmProgramMode
expect-focus C_SetVatRate
key Tab
expect-focus C_DepartmentProgram
keys " "
screen FrmDepartmentProgram
expect-focus Cmb_DepartmentNumber
click C_Annulla
expect-focus C_DepartmentProgram

# Escape does nothing in an editor or a menu: what was typed is safe from it.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_SetVatRate
focus E_VatRate(1)
key Ctrl+a
keys "750"
key Escape
screen FrmSetVatRate
expect E_VatRate(1) "750"
click C_Annulla
key Escape
screen FrmProgramMode
click C_DepartmentProgram
type E_DeptName "Typed"
key Escape
screen FrmDepartmentProgram
expect E_DeptName "Typed"
key Enter
expect-focus E_DeptName
expect E_DeptName "Typed"

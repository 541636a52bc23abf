# The register refuses: the failure box, and the three buttons work again. What was typed is still there.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_DepartmentProgram
type E_DeptName "Typed"
register answer 1026 0
click C_Invia_Ecr
expect-enabled C_Annulla no
box critical "Sending to the cash register failed.\nCheck that it is switched on, connected and not busy, then send again." Ok
screen FrmDepartmentProgram
expect-enabled C_Annulla yes
expect-enabled C_Salva yes
expect-enabled C_Invia_Ecr yes
expect E_DeptName "Typed"
expect-log "Send_PrgModeToEcr error. Code: 402 Desc: The writing error occurred by the communication."

# A group name that was typed and not saved is lost when another group is chosen.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_DeptGroupProgram
expect E_Name "Drinks      "
type E_Name "Typed"
choose Cmb_DeptGroupNumber "2"
expect E_Name "Counter     "
choose Cmb_DeptGroupNumber "1"
expect E_Name "Drinks      "
click C_Salva
expect-same Dati/PRG_MODE.BIN register/PRG_MODE.BIN

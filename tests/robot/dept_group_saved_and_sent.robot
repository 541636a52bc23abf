# A group is named, saved and sent; its number stays, and no other byte changes.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_DeptGroupProgram
screen FrmDeptGroupSetting
expect-title "Department groups"
expect L_Titolo "Department groups"
expect L_DeptGroupNumber "Group number"
expect L_Name "Name"
expect-items Cmb_DeptGroupNumber "1" "2" "3" "4" "5" "6" "7" "8" "9" "10"
expect-maxlength E_Name 12
choose Cmb_DeptGroupNumber "10"
expect E_Name "Deposits    "
type E_Name "Crème fraîche"
expect E_Name "Crème fraîch"
click C_Salva
expect Cmb_DeptGroupNumber "10"
expect-bytes Dati/PRG_MODE.BIN 3245 4372EF6D6520667261E06368
copy Dati/PRG_MODE.BIN saved.bin
poke saved.bin 3245 4465706F7369747320202020
expect-same saved.bin register/PRG_MODE.BIN
click C_Invia_Ecr
expect-same Dati/PRG_MODE.BIN register/PRG_MODE.BIN
click C_Annulla
screen FrmProgramMode

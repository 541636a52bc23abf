# A letter that is typed with Alt gets into no rate, password, item code or number list, a digit into no choice list.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_ProgramMode
click C_SetVatRate
focus E_VatRate(1)
key End
key Alt+a
key Alt+Shift+z
expect E_VatRate(1) "22000"
click C_Salva
expect E_VatRate(1) "22 %"
expect-same Dati/PRG_MODE.BIN register/PRG_MODE.BIN
click C_Annulla
click C_PermissionProgram
focus E_XModePasswordSetting
key Ctrl+a
keys "12"
key Alt+a
key Alt+3
expect E_XModePasswordSetting "123"
click C_Annulla
click C_PluProgram
focus Cmb_PluNumber
key End
key Alt+a
expect Cmb_PluNumber "1"
focus E_FreeCode
key End
key Alt+a
expect E_FreeCode "1"
focus Cmb_LinkDept
expect Cmb_LinkDept "1"
key Alt+2
expect Cmb_LinkDept "1"
screen FrmPrgPlu

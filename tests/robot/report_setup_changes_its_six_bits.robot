# The report setup changes its six bits and leaves the ten of other screens.
poke register/PRG_MODE.BIN 10 FFFF
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_SettingMode
click C_Report_Setup
expect-visible Cmb_ConsecutiveReset yes
expect-visible Cmb_InvoiceReset yes
expect-visible Cmb_GTReset yes
expect-visible Cmb_Z1_Z2CounterReset yes
expect-visible Cmb_DuplicateZ yes
expect-visible Cmb_ZeroSkip yes
expect-items Cmb_GTReset "0. No" "1. Yes"
expect-items Cmb_DuplicateZ "0. Active" "1. Inactive"
expect-items Cmb_ZeroSkip "0. Yes" "1. No"
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 10 FFFF
choose Cmb_ConsecutiveReset #0
choose Cmb_InvoiceReset #0
choose Cmb_GTReset #0
choose Cmb_Z1_Z2CounterReset #0
choose Cmb_DuplicateZ #0
choose Cmb_ZeroSkip #0
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 10 E1E7
choose Cmb_InvoiceReset #1
choose Cmb_ZeroSkip #1
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 10 E5F7

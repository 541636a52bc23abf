# Bytes beyond what a list has show nothing, and a save without a choice stores 0.
poke register/PRG_MODE.BIN 5 040304
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_SettingMode
click C_Print_Out_Mode
expect Cmb_LineDistanceSel ""
expect Cmb_ReceiptwithoutTableTrackingPrint ""
expect Cmb_NewBalanceReceiptPrint ""
click C_Salva
expect-bytes Dati/PRG_MODE.BIN 5 000000

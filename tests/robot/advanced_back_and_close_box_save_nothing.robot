# Back and the close box lead to the Setup menu and save nothing.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_AdvancedSetting
screen FrmAdvancedSetting
tab Tab_AdvancedOption 1
click L_key2(1)
close
screen FrmSetup
click C_AdvancedSetting
expect-tab Tab_AdvancedOption 0
expect L_key2(1) "CLERK, ESC"
expect-colour L_key2(1) black
check Chk_FullEJ on
click C_Annulla
screen FrmSetup
expect-same register/PRG_MODE.BIN Dati/PRG_MODE.BIN

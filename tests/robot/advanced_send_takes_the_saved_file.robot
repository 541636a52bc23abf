# A saved key goes to the register, one that was only clicked does not.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_AdvancedSetting
screen FrmAdvancedSetting
tab Tab_AdvancedOption 1
click L_key2(1)
forget-calls
click C_Invia_Ecr
screen FrmAdvancedSetting
expect-calls 4
expect-bytes register/PRG_MODE.BIN 5581 16
expect L_key2(1) "NO OPERATION"
click C_Salva
click C_Invia_Ecr
nobox
expect-bytes register/PRG_MODE.BIN 5581 FF
expect-same register/PRG_MODE.BIN Dati/PRG_MODE.BIN
expect-enabled C_Salva yes
expect-enabled C_Annulla yes
expect-focus C_Invia_Ecr

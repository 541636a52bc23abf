# Both models in one run: each main menu names its own, and each works on its own defaults.
start
expect E_ComPort 4
click C_Z320
click C_NuovaProgrammazione
box plain * Yes
click C_SettingMode
expect-visible C_Hospitality_Setup yes
close
close
close
click C_Z300
expect-title "Vermanto ECR Programming Tool -   ECRZ300"
click C_ModificaProgrammazione
box plain * No
box plain * Ok
screen FrmPres
click C_Z300
click C_NuovaProgrammazione
box plain * Yes
expect-same Dati/PRG_MODE.BIN Dati/ECRZ300/ECRZ300_PRG_MODE.BIN
click C_SettingMode
expect-visible C_Hospitality_Setup no

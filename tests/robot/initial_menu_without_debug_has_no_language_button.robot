# Without the option DEBUG the language button is out of sight.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_SettingMode
click C_Initial_Setup
expect-visible C_SettaLingua no

# A register that refuses the sending shows the message of the frame; the screen stays and its buttons can be used
# again.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_SettingMode
click C_Report_Setup
register answer 1026 0
click C_Invia_Ecr
expect-enabled C_Salva no
box critical "Sending to the cash register failed.\nCheck that it is switched on, connected and not busy, then send again." Ok
screen FrmReportSetup
expect-enabled C_Salva yes
expect-enabled C_Invia_Ecr yes
expect-enabled C_Annulla yes

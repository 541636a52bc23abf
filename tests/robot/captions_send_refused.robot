# A send that is refused tells so, and the buttons work again.
start
expect E_ComPort 4
click C_Z320
click C_ModificaProgrammazione
box plain * Yes
click C_MessageSetup

register fails 0
click C_Invia_Ecr
box critical * Ok
screen FrmCaptionSetting
expect-enabled C_Salva yes
expect-enabled C_Invia_Ecr yes
expect-enabled C_Annulla yes

# A machine without serial ports: the field shows 0, in no colour, and nothing is asked.
register ports
start
screen FrmPres
expect E_ComPort 0
wait 0.3
expect-colour E_ComPort black
expect-calls 0
click C_Z320
screen FrmPrincipale

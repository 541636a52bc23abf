# Sending without a file says so, and calls nothing.
start
expect E_ComPort 4
click C_Z320
click C_Logo
screen FrmSetLogo
forget-calls
click C_Invia_Ecr
box information "Choose the file to send first." Ok
expect-calls 0
screen FrmSetLogo

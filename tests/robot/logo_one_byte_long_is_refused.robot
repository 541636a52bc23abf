# A bitmap of 7839 bytes is refused when it is chosen.
start
expect E_ComPort 4
click C_Z320
click C_Logo
screen FrmSetLogo
copy Logo/sample_logo.bmp Logo/long.bmp
truncate Logo/long.bmp 7839
click C_Sfoglia
file Logo/long.bmp
box plain "Image to upload not correct" Ok
expect L_percorso ""
forget-calls
click C_Invia_Ecr
box information * Ok
expect-calls 0

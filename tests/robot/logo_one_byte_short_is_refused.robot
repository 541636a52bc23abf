# A bitmap of 7837 bytes is refused when it is chosen; the path and the picture chosen before are gone.
start
expect E_ComPort 4
click C_Z320
click C_Logo
screen FrmSetLogo
click C_Sfoglia
file Logo/sample_logo.bmp
expect-like L_percorso "*sample_logo.bmp"
copy Logo/sample_logo.bmp Logo/short.bmp
truncate Logo/short.bmp 7837
click C_Sfoglia
file Logo/short.bmp
box plain "Image to upload not correct" Ok
expect L_percorso ""
click C_Invia_Ecr
box information "Choose the file to send first." Ok

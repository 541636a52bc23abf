# Whoever cancels the chooser has no logo chosen any more.
start
expect E_ComPort 4
click C_Z320
click C_Logo
screen FrmSetLogo
click C_Sfoglia
file Logo/sample_logo.bmp
expect-like L_percorso "*sample_logo.bmp"
click C_Sfoglia
file cancel
expect L_percorso ""
nobox

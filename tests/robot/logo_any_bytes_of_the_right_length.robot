# A file of the right length is taken whatever it holds; the conversion refuses it, and only the log says so.
start
expect E_ComPort 4
click C_Z320
click C_Logo
screen FrmSetLogo
fill Logo/noise.bmp 0 7838 FF
click C_Sfoglia
file Logo/noise.bmp
expect-like L_percorso "*noise.bmp"
click C_Invia_Ecr
screen FrmSetLogo
expect-log "Send_LogoToEcr conversion error. Code: 10010000 Desc:The original BMP file is not a proper BMP type file."
expect-file Dati/GRAPHIC.BIN missing

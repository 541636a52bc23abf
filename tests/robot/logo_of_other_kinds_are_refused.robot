# Bitmaps of the right length, but coloured, compressed, too wide or of an unknown kind: each has its line in the log, and no box.
start
expect E_ComPort 4
click C_Z320
click C_Logo
screen FrmSetLogo
copy Logo/sample_logo.bmp Logo/a.bmp
poke Logo/a.bmp 28 0800
click C_Sfoglia
file Logo/a.bmp
click C_Invia_Ecr
screen FrmSetLogo
expect-log "Send_LogoToEcr conversion error. Code: 10020000 Desc:The original BMP file has not been prepared as a black-and-white data."
copy Logo/sample_logo.bmp Logo/b.bmp
poke Logo/b.bmp 30 01
click C_Sfoglia
file Logo/b.bmp
click C_Invia_Ecr
screen FrmSetLogo
expect-log "Send_LogoToEcr conversion error. Code: 10030000 Desc:Unknown file type."
copy Logo/sample_logo.bmp Logo/c.bmp
poke Logo/c.bmp 18 0108
click C_Sfoglia
file Logo/c.bmp
click C_Invia_Ecr
screen FrmSetLogo
expect-log "Send_LogoToEcr conversion error. Code: 10040000 Desc:The numbers of dots in the line is over 2048 dots."
copy Logo/sample_logo.bmp Logo/d.bmp
poke Logo/d.bmp 22 A300
click C_Sfoglia
file Logo/d.bmp
click C_Invia_Ecr
screen FrmSetLogo
expect-log "Send_LogoToEcr conversion error. Code: 10010000 Desc:The original BMP file is not a proper BMP type file."
expect-file Logo/GRAPHIC.BIN missing

# The button EJ opens a journal file: its path is shown, and can then be sent as a logo, which the conversion refuses.
start
expect E_ComPort 4
click C_Z320
click C_Logo
screen FrmSetLogo
fill Dati/journal.bin 0 78 41
click C_EJ
expect-chooser "Percorso File giornale" "File Journal(*.bin)|*.bin"
file Dati/journal.bin
expect-like L_percorso "*journal.bin"
expect L_Nota "A journal file of 2 records."
nobox
forget-calls
click C_Invia_Ecr
screen FrmSetLogo
expect-calls 1
expect-call 1 "send_logo source=. target1=Dati target2=journal.bin timeout=60"
expect-log "Send_LogoToEcr conversion error. Code: 10010000 Desc:The original BMP file is not a proper BMP type file."

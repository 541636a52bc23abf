# The sample logo is chosen, looked at and sent: two calls, one file in three places, a receipt with the logo on it.
start
expect E_ComPort 4
click C_Z320
click C_Logo
screen FrmSetLogo
expect L_percorso ""
click C_Sfoglia
expect-chooser "Percorso Immagine" "File Bitmap(*.bmp)|*.bmp"
file Logo/sample_logo.bmp
expect-like L_percorso "*sample_logo.bmp"
expect-file Logo/GRAPHIC.BIN missing
forget-calls
click C_Invia_Ecr
box plain "The logo is in the cash register now." Ok
screen FrmSetLogo
expect-calls 2
expect-call 1 "send_logo source=. target1=Logo target2=sample_logo.bmp timeout=60"
expect-call 2 "send_cmd folder=. direction=1 file=2 timeout=60 port=4"
expect-file Logo/GRAPHIC.BIN size 7780
expect-bytes Logo/GRAPHIC.BIN 0 8001A200
expect-same Logo/GRAPHIC.BIN Dati/GRAPHIC.BIN
expect-same Logo/GRAPHIC.BIN register/GRAPHIC.BIN
expect-file register/receipt.bmp exists
expect-enabled C_Invia_Ecr yes
click C_Annulla
screen FrmPrincipale

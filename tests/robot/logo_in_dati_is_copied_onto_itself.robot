# A bitmap that lies in Dati is converted there, and the copy onto itself does no harm.
start
expect E_ComPort 4
click C_Z320
click C_Logo
screen FrmSetLogo
copy Logo/sample_logo.bmp Dati/logo.bmp
click C_Sfoglia
file Dati/logo.bmp
forget-calls
click C_Invia_Ecr
box plain * Ok
expect-calls 2
expect-call 1 "send_logo source=. target1=Dati target2=logo.bmp timeout=60"
expect-file Dati/GRAPHIC.BIN size 7780
expect-same Dati/GRAPHIC.BIN register/GRAPHIC.BIN

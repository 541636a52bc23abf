# The codes from 1000000 to 1006464 say that the conversion went well; one below, one above and 0 do not.
start
expect E_ComPort 4
click C_Z320
click C_Logo
screen FrmSetLogo
click C_Sfoglia
file Logo/sample_logo.bmp
register logo 16777215
forget-calls
click C_Invia_Ecr
screen FrmSetLogo
expect-log "Send_LogoToEcr conversion error. Code: FFFFFF Desc:No description"
register logo 16802917
click C_Invia_Ecr
screen FrmSetLogo
expect-log "Send_LogoToEcr conversion error. Code: 1006465 Desc:No description"
register logo 0
click C_Invia_Ecr
screen FrmSetLogo
expect-log "Send_LogoToEcr conversion error. Code: 0 Desc:No description"
expect-calls 3
expect-file Dati/GRAPHIC.BIN missing
register logo 16777216
click C_Invia_Ecr
box plain * Ok
register logo 16802916
click C_Invia_Ecr
box plain * Ok
register logo normal
click C_Invia_Ecr
box plain * Ok
expect-calls 6

# The logo screen in English.
start
expect E_ComPort 4
click C_Z320
click C_Logo
screen FrmSetLogo
expect-title "Set logo"
expect L_Titolo "Set logo"
expect C_Sfoglia Browse
expect C_EJ EJ
expect C_Annulla Back
expect C_Invia_Ecr "Send to register"
expect-focus C_Sfoglia
close
screen FrmPrincipale

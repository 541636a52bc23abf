# Where the language file has no texts, the logo screen has its own, those of its boxes too.
write Setup/FrmDescEng.txt ""
start
expect E_ComPort 4
click C_Z320
click C_Logo
screen FrmSetLogo
expect L_Titolo "SET LOGO"
expect C_Sfoglia Browse
expect C_EJ EJ
expect C_Annulla Back
expect C_Invia_Ecr "Send to ECR"
click C_Invia_Ecr
box information "Select the file to send" Ok
copy Logo/sample_logo.bmp "Logo/my logo.bmp"
click C_Sfoglia
file "Logo/my logo.bmp"
click C_Invia_Ecr
box critical "Is not spossible send a logo that has a Space (' ') in the source path." Ok
click C_Sfoglia
file Logo/sample_logo.bmp
click C_Invia_Ecr
box plain "Logo Programmed" Ok

# A blank in the file's name passes the browse and is refused at the send; so is one in a folder's name.
start
expect E_ComPort 4
click C_Z320
click C_Logo
screen FrmSetLogo
copy Logo/sample_logo.bmp "Logo/my logo.bmp"
make-folder "My logos"
copy Logo/sample_logo.bmp "My logos/logo.bmp"
click C_Sfoglia
file "Logo/my logo.bmp"
expect-like L_percorso "*my logo.bmp"
forget-calls
click C_Invia_Ecr
box critical "The path of the logo contains a blank (' ').\nChoose a file whose name and folder have no blanks." Ok
expect-like L_percorso "*my logo.bmp"
click C_Sfoglia
file "My logos/logo.bmp"
click C_Invia_Ecr
box critical * Ok
expect-calls 0

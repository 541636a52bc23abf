# Whoever cancels the journal's chooser keeps the logo that was chosen; the chooser keeps the journal's filter.
start
expect E_ComPort 4
click C_Z320
click C_Logo
screen FrmSetLogo
click C_Sfoglia
file Logo/sample_logo.bmp
click C_EJ
expect-chooser "Percorso File giornale" "File Journal(*.bin)|*.bin"
file cancel
expect-like L_percorso "*sample_logo.bmp"
click C_Sfoglia
expect-chooser "Percorso File giornale" "File Journal(*.bin)|*.bin"
file Logo/sample_logo.bmp
expect-like L_percorso "*sample_logo.bmp"
click C_Annulla
click C_Logo
click C_Sfoglia
expect-chooser "Percorso Immagine" "File Bitmap(*.bmp)|*.bmp"
file cancel

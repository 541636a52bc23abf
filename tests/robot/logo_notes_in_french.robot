# What the logo screen says of a file is in the user's language.
poke Setup/Language.ini 0 02
start
expect E_ComPort 4
click C_Z320
click C_Logo
screen FrmSetLogo
expect-like L_Nota "La caisse accepte un bitmap en noir et blanc d'exactement 7838 octets*384 points de large et 162 de haut*"
fill Dati/journal.bin 0 78 41
click C_EJ
file Dati/journal.bin
expect L_Nota "Un fichier de journal de 2 enregistrements."

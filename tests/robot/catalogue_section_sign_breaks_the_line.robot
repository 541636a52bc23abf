# A section sign in a text is a line break in the box.
write Setup/FrmDescEng.txt "FRM_PRINCIPALE_NUOVA_PRG_MSG=First line§second line§§last\n"
start
expect E_ComPort 4
click C_Z320
click C_NuovaProgrammazione
box plain "First line\nsecond line\n\nlast" No
screen FrmPrincipale

# A language file of nonsense does no harm: the built-in captions show.
fill Setup/FrmDescEng.txt 0 70000 00
poke Setup/FrmDescEng.txt 0 FF3DA7000D0A3D3D0A5B3D0D3B3D0A80813D90
start
screen FrmPres
expect E_ComPort 4
expect C_Exit "EXIT"
expect L_Titolo2 "ECR Programming Utility"
click C_Z320
screen FrmPrincipale

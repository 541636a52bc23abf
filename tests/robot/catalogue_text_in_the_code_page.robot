# Letters beyond plain ones, the euro sign among them, show as they are meant.
write Setup/FrmDescEng.txt "FRM_PRES_TITLE2=Caisses à 5 € – œuf, Ñandú\nFRM_PRES_C_EXIT=Schlie\xdfen\n"
start
screen FrmPres
expect L_Titolo2 "Caisses à 5 € – œuf, Ñandú"
expect C_Exit "Schließen"

# A key with nothing behind its "=" leaves the built-in caption.
write Setup/FrmDescEng.txt "FRM_PRES_C_EXIT=\nFRM_PRES_TITLE2=Here\n"
start
screen FrmPres
expect L_Titolo2 "Here"
expect C_Exit "EXIT"

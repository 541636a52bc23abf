# An entry that is given twice: the last one counts, also where it is empty.
write Setup/FrmDescEng.txt "FRM_PRES_C_EXIT=one\nFRM_PRES_TITLE2=one\nFRM_PRES_C_EXIT=two\nFRM_PRES_TITLE2=\n"
start
screen FrmPres
expect C_Exit "two"
expect L_Titolo2 "ECR Programming Utility"

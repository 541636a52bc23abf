# Further "=" belong to the text, blanks in front of it too; blanks at the end of the line are lost.
write Setup/FrmDescEng.txt "FRM_PRES_TITLE2=a=b==c\nFRM_PRES_C_EXIT=  Out   \nFRM_PRES_L_COM_PORT= \n"
start
screen FrmPres
expect L_Titolo2 "a=b==c"
expect C_Exit "  Out"
expect L_ComPort "Comunication Port:"

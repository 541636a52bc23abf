# A language file with the line ends of another system reads the same.
write Setup/FrmDescEng.txt "[head]\r\nFRM_PRES_TITLE2=Title\r\nFRM_PRES_C_EXIT=Out  \r\n"
start
screen FrmPres
expect L_Titolo2 "Title"
expect C_Exit "Out"
expect E_ComPort 4
expect-lines Log/memo_log.txt 1

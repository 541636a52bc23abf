# The German file has no word for EXIT: the English one that was there stays. At the next start there is none, and the
# button's own caption shows.
write Setup/FrmDescGer.txt "FRM_PRES_TITLE2=Kassen\n"
start
expect E_ComPort 4
expect C_Exit "Exit"
click C_LinguaSel
click Opt_Lang(3)
click C_Save
expect L_Titolo2 "Kassen"
expect C_Exit "Exit"
expect L_ComPort "Communication port"
restart
expect L_Titolo2 "Kassen"
expect C_Exit "EXIT"
expect L_ComPort "Comunication Port:"

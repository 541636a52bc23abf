# An empty language file: every caption is the built-in one, and the messages that have no built-in text are empty.
write Setup/FrmDescEng.txt ""
start
screen FrmPres
expect L_Titolo2 "ECR Programming Utility"
expect L_ComPort "Comunication Port:"
expect C_Exit "EXIT"
expect E_ComPort 4
click C_LinguaSel
expect-title "Language Selection"
expect C_Save "Save"
expect C_Annulla "Back"
click C_Annulla
click C_Z320
expect-title "Vermanto ECR Programming Tool -    ECRZ320"
expect C_NuovaProgrammazione "PROGRAM A NEW CASH REGISTER"
expect C_ModificaProgrammazione "UPDATE CASH REGISTER PROGRAMMING"
expect C_Logo "SET UP A LOGO"
expect C_Back "BACK"
click C_NuovaProgrammazione
box plain "Overwrite current setting with default?" No
register answer 4097 0
click C_ModificaProgrammazione
box plain "Get Setting from Cash register?" Yes
box critical "Comunicatione error: The ECR side is in the state of BUSY." Ok
register answer 0
register fails 0
click C_ModificaProgrammazione
box plain * Yes
box plain "" Ok
box plain "" Ok
screen FrmPres

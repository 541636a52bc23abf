# The start screen by keyboard: the model buttons, the port, the language and EXIT are reached with Tab, Enter presses.
start
expect E_ComPort 4
expect-focus C_Z300
key Tab
expect-focus C_Z320
key Tab
expect-focus E_ComPort
key Tab
expect-focus C_LinguaSel
key Enter
screen FrmLanguage
key Escape
screen FrmPres
expect-focus C_LinguaSel
key Tab
expect-focus C_Exit
key Shift+Tab 3
expect-focus C_Z320
key Enter
screen FrmPrincipale
expect-title "Vermanto ECR Programming Tool -   ECRZ320"

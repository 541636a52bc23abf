# The main menu by keyboard: Tab walks over the buttons, Enter and Space press them, letters do nothing.
start
expect E_ComPort 4
click C_Z320
expect-focus C_ModificaProgrammazione
keys "xyz"
screen FrmPrincipale
key Shift+Tab
expect-focus C_NuovaProgrammazione
keys " "
box plain "Start again from the default settings?\nThe settings and items kept on this PC will be replaced." No
screen FrmPrincipale
expect-focus C_NuovaProgrammazione
key Enter
key Enter
screen FrmSetup

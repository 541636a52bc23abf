# No port was found and the field shows 0: the main menu uses port 1.
register off
start
expect-colour E_ComPort red
click C_Z300
screen FrmPrincipale
expect-bytes port.ini 0 01

# The user types another port: the main menu talks to the register there, and notes the port for the exchange program.
register ports 4
start
expect E_ComPort 4
register on 9
focus E_ComPort
key Ctrl+a
keys 9
expect E_ComPort 9
forget-calls
click C_Z320
screen FrmPrincipale
expect L_Release_Fw "ECRZ300/ECRZ320F    FW rel.1.04     "
expect-calls 1
expect-call 1 "send_cmd folder=. direction=0 file=22 timeout=3 port=9"
expect-bytes port.ini 0 09
expect-file port.ini size 1

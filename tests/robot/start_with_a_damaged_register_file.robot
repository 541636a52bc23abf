# The emulated register's own file is unreadable: it answers as a fresh one does, and the start screen says nothing of
# its model.
write register/register.txt "\x00\xff\x80 not = a = register\n= =\nport"
start
expect E_ComPort 4
expect-colour E_ComPort green
expect-visible L_Emulated no
click C_Z320
expect L_Release_Fw "ECRZ300/ECRZ320F    FW rel.1.04     "

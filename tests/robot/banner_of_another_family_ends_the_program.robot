# A register of another family is linked: its banner and the wrong-register message in a box, a log line, and the program
# ends at once.
register banner "ANOTHER FAMILY 5000 FW rel.2.00"
start
expect E_ComPort 4
click C_Z320
box plain "ANOTHER FAMILY 5000 FW rel.2.00     \nThe cash register or its programming does not match the chosen model, or the register does not answer.\nCheck the cable, the port and the model on the start screen, then try again." Ok
expect-ended
expect-log "Linked:ANOTHER FAMILY 5000 FW rel.2.00     "
expect-no-log "End Programm"

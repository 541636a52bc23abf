# The twentieth character still belongs to the family's name.
register banner "ECRZ300/ECRZ320F   xFW rel.1.04"
start
expect E_ComPort 4
click C_Z300
box plain * Ok
expect-ended
expect-log "Linked:ECRZ300/ECRZ320F   xFW rel.1.04     "
